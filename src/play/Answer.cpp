#include "play/Answer.h"

const char* NameOf(EQuestion question) {
    switch (question) {
        case EQuestion::Box:
            return "box";
        case EQuestion::Open:
            return "open";
        case EQuestion::Save:
            return "save";
        case EQuestion::Color:
            return "color";
        case EQuestion::Font:
            return "font";
        case EQuestion::Menu:
            return "menu";
        case EQuestion::Size:
            return "size";
        case EQuestion::Delete:
            return "delete";
        case EQuestion::Port:
            return "port";
        case EQuestion::PhoneFiles:
            return "phonefiles";
        case EQuestion::PhoneSize:
            return "phonesize";
        case EQuestion::Print:
            return "print";
        case EQuestion::Modal:
            break;
    }
    return "dialog";
}

#include "play/Verbs.h"

#include <algorithm>

const CVerb* FindVerb(const std::string& strName) {
    for (const std::span<const CVerb> arrVerbs :
         {MachineVerbs(), HandVerbs(), BrowseVerbs(), AnswerVerbs(), LookVerbs()}) {
        const auto it = std::find_if(arrVerbs.begin(), arrVerbs.end(),
                                     [&](const CVerb& verb) { return strName == verb.szName; });
        if (it != arrVerbs.end()) return &*it;
    }
    return nullptr;
}

std::string NotA(const std::string& strWord, const char* szKind) {
    return Quote(strWord) + " is no " + szKind;
}

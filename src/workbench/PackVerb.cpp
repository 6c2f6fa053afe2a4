#include <vector>

#include "engines/pack/PhoneJpeg.h"
#include "image/FileBytes.h"
#include "workbench/OutFile.h"
#include "workbench/Verbs.h"

namespace {

CWorkResult CannotBeDone(const std::string& strError) {
    return {kCannotBeDone, strError};
}

std::span<const std::uint8_t> SpanOf(const CSharedBytes& bytes) {
    return {bytes.Data(), bytes.Size()};
}

}  // namespace

CWorkResult RunPackVerb(std::span<const std::string> words) {
    if (words.size() != 3) return {kWrongCall, "it is pack PICTURE.jpg THUMB.jpg OUT.jpg"};
    CSharedBytes arrFiles[2];
    for (int i = 0; i < 2; ++i) {
        arrFiles[i] = ReadFileBytes(words[i]);
        if (arrFiles[i].IsEmpty()) return CannotBeDone(words[i] + " cannot be read");
        if (arrFiles[i].Size() < kPlainJpegHead) return CannotBeDone(words[i] + " is too short for a JPEG");
    }
    if (arrFiles[1].Size() > kMostThumbBytes) return CannotBeDone(words[1] + " is too long for a thumbnail");
    std::vector<std::uint8_t> packed;
    if (!PackPhoneJpeg(SpanOf(arrFiles[0]), SpanOf(arrFiles[1]), packed))
        return CannotBeDone("there is no memory for " + words[0]);
    if (!WriteBytes(words[2], packed)) return CannotBeDone(words[2] + " cannot be written");
    return {};
}

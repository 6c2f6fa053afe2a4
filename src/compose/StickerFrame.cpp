#include "compose/StickerFrame.h"

#include <memory>
#include <string>

#include "compose/FrameRecord.h"

namespace {

constexpr char kLibrary[] = "StickerFrameData.dll";
constexpr char kFunction[] = "FuncStickerFrameData_";

using CRecordFunction = const std::uint8_t* (*)();

}  // namespace

EComposed CStickerFrame::Compose(int nFrame, CxImage& image) {
    const std::unique_ptr<CLibrary> pLibrary = m_libraries.Load(kLibrary);
    if (pLibrary == nullptr) return EComposed::NoFrame;
    const std::string strFunction = kFunction + std::to_string(nFrame);
    const auto pFunction = reinterpret_cast<CRecordFunction>(pLibrary->Find(strFunction.c_str()));
    const std::uint8_t* const pRecord = pFunction == nullptr ? nullptr : pFunction();
    if (pRecord == nullptr) return EComposed::NoFrame;
    return LayFrame(pRecord, image) ? EComposed::Done : EComposed::NoMemory;
}

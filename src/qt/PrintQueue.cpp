#include "qt/PrintQueue.h"

#include <QByteArray>
#include <QLibrary>
#include <QString>

namespace {

struct CCupsDest {
    char* szName;
    char* szInstance;
    int bDefault;
    int nOptions;
    void* pOptions;
};

using CNamedDestCall = CCupsDest* (*)(void* pServer, const char* szName, const char* szInstance);
using COptionCall = const char* (*)(const char* szName, int nOptions, void* pOptions);
using CFreeCall = void (*)(int nDests, CCupsDest* pDests);
using CLastErrorCall = int (*)();

template <typename TCall>
TCall Resolve(const char* szName) {
    return reinterpret_cast<TCall>(QLibrary::resolve("cups", 2, szName));
}

}  // namespace

EOrientation QueueOrientation(const QString& strPrinter) {
    const auto fnDest = Resolve<CNamedDestCall>("cupsGetNamedDest");
    const auto fnOption = Resolve<COptionCall>("cupsGetOption");
    const auto fnFree = Resolve<CFreeCall>("cupsFreeDests");
    if (fnDest == nullptr || fnOption == nullptr || fnFree == nullptr) return EOrientation::Portrait;
    // A set of options that has a name of its own stands behind a slash.
    const QByteArray strName = strPrinter.section('/', 0, 0).toLocal8Bit();
    const QByteArray strSet = strPrinter.section('/', 1).toLocal8Bit();
    CCupsDest* const pDest =
        fnDest(nullptr, strName.constData(), strSet.isEmpty() ? nullptr : strSet.constData());
    if (pDest == nullptr) return EOrientation::Portrait;
    // 3 is upright, 4 a quarter turn, 5 the quarter turn the other way.
    const QByteArray strOrientation = fnOption("orientation-requested", pDest->nOptions, pDest->pOptions);
    const char* const szLandscape = fnOption("landscape", pDest->nOptions, pDest->pOptions);
    const bool bLandscape = szLandscape != nullptr && QByteArray(szLandscape) != "false";
    fnFree(1, pDest);
    return bLandscape || strOrientation == "4" || strOrientation == "5" ? EOrientation::Landscape
                                                                        : EOrientation::Portrait;
}

bool WasJobTaken() {
    constexpr int kFirstError = 0x400;
    const auto fnLastError = Resolve<CLastErrorCall>("cupsLastError");
    if (fnLastError == nullptr) return true;
    const int nStatus = fnLastError();
    return nStatus >= 0 && nStatus < kFirstError;
}

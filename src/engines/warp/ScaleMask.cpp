#include "engines/warp/ScaleMask.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "image/CpuChoice.h"

namespace {

// How many rows at the bottom the scale leaves out.
constexpr int kRowsLeftOut = 2;

// Between which two pixels of a side a place lies, and how far it is from the first.
struct CPlace {
    int nFirst = 0;
    int nSecond = 0;
    float f = 0;
};

// Place i of a target in a side of nSize pixels; beyond its end the last pixel stands for all others.
CPlace PlaceOf(int i, float fScale, int nSize) {
    const float fPlace = static_cast<float>(i) / fScale;
    const int nPlace = static_cast<int>(fPlace);
    return {std::min(nPlace, nSize - 1), std::min(nPlace + 1, nSize - 1),
            fPlace - static_cast<float>(nPlace)};
}

void StretchRow(const std::uint8_t* pRow, const std::vector<CPlace>& places, float* pOut) {
    for (std::size_t x = 0; x < places.size(); ++x) {
        const CPlace place = places[x];
        pOut[x] = (1.0F - place.f) * pRow[place.nFirst] + place.f * pRow[place.nSecond];
    }
}

FOTARIUM_INLINE void MixRowsBody(const float* __restrict pTop, const float* __restrict pBottom, float f,
                                 std::uint8_t* __restrict pOut, std::size_t n) {
    for (std::size_t x = 0; x < n; ++x)
        pOut[x] = static_cast<std::uint8_t>(static_cast<int>((1.0F - f) * pTop[x] + f * pBottom[x]));
}

void MixRowsPlain(const float* pTop, const float* pBottom, float f, std::uint8_t* pOut, std::size_t n) {
    MixRowsBody(pTop, pBottom, f, pOut, n);
}

FOTARIUM_AVX2 void MixRowsWide(const float* pTop, const float* pBottom, float f, std::uint8_t* pOut,
                               std::size_t n) {
    MixRowsBody(pTop, pBottom, f, pOut, n);
}

// The two rows of the mask that were used last, stretched to the target's width.
class CStretchedRows {
  public:
    CStretchedRows(CConstGreyView mask, int nWidth, float fScale)
        : m_mask(mask), m_places(static_cast<std::size_t>(nWidth)) {
        for (int x = 0; x < nWidth; ++x)
            m_places[static_cast<std::size_t>(x)] = PlaceOf(x, fScale, mask.nWidth);
        for (CRow& row : m_rows) row.arr.resize(m_places.size());
    }

    // Good until the next but one row is asked for. Rows that follow each other differ in the last bit.
    const float* Row(int y) {
        CRow& row = m_rows[y % 2];
        if (row.y != y) StretchRow(m_mask.Row(y), m_places, row.arr.data());
        row.y = y;
        return row.arr.data();
    }

  private:
    struct CRow {
        int y = -1;
        std::vector<float> arr;
    };

    CConstGreyView m_mask;
    std::vector<CPlace> m_places;
    CRow m_rows[2];
};

}  // namespace

void ScaleMask(CConstGreyView mask, CGreyView target) {
    std::memset(target.pBits, kNoInk, target.Size());
    if (mask.nHeight <= kRowsLeftOut) return;
    const int nWidth = target.nWidth - 1;
    const float fScaleX = static_cast<float>(target.nWidth) / static_cast<float>(mask.nWidth);
    const float fScaleY =
        static_cast<float>(target.nHeight) / static_cast<float>(mask.nHeight - kRowsLeftOut);
    CStretchedRows rows(mask, nWidth, fScaleX);
    const auto mixRows = UseAvx2() ? MixRowsWide : MixRowsPlain;
    for (int y = 0; y < target.nHeight - 1; ++y) {
        const CPlace place = PlaceOf(y, fScaleY, mask.nHeight);
        const float* const pTop = rows.Row(place.nFirst);
        mixRows(pTop, rows.Row(place.nSecond), place.f, target.Row(y), static_cast<std::size_t>(nWidth));
    }
}

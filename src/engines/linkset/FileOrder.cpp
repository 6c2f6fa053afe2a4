#include "engines/linkset/FileOrder.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>

namespace {

// From UTF-8 into GBK, character by character.
class CGbkConverter {
  public:
    CGbkConverter() : m_conversion(iconv_open("GBK", "UTF-8")) {}
    ~CGbkConverter() {
        if (IsThere()) iconv_close(m_conversion);
    }
    CGbkConverter(const CGbkConverter&) = delete;
    CGbkConverter& operator=(const CGbkConverter&) = delete;

    std::string Convert(std::string str) const {
        std::string strResult;
        char* pIn = str.data();
        std::size_t nIn = str.size();
        while (nIn > 0) {
            std::array<char, 256> buffer{};
            char* pOut = buffer.data();
            std::size_t nOut = buffer.size();
            const bool bAll = IsThere() && iconv(m_conversion, &pIn, &nIn, &pOut, &nOut) != kFailed;
            strResult.append(buffer.data(), buffer.size() - nOut);
            if (bAll || (IsThere() && errno == E2BIG)) continue;
            strResult += '?';
            Skip(pIn, nIn);
        }
        return strResult;
    }

  private:
    static constexpr auto kFailed = static_cast<std::size_t>(-1);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): so the library tells that it failed.
    bool IsThere() const { return m_conversion != iconv_t(-1); }
    // Over one character, or one byte that is of none.
    static void Skip(char*& pIn, std::size_t& nIn) {
        do {
            ++pIn;
            --nIn;
        } while (nIn > 0 && (static_cast<unsigned char>(*pIn) & 0xC0U) == 0x80U);
    }

    iconv_t m_conversion;
};

bool IsAscii(const std::string& str) {
    return static_cast<unsigned char>(str.front()) < 0x80U;
}

// What stands for a name when it is compared: never empty.
std::string KeyOf(const CGbkConverter& converter, std::string strName, bool bAscending) {
    if (strName.empty()) return std::string(1, bAscending ? '\xFF' : '\0');
    for (char& c : strName)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return converter.Convert(std::move(strName));
}

void SortByName(std::span<const CFileItem> items, bool bAscending, std::vector<std::size_t>& arrOrder) {
    const CGbkConverter converter;
    std::vector<std::string> arrKeys;
    arrKeys.reserve(items.size());
    for (const CFileItem& item : items) arrKeys.push_back(KeyOf(converter, item.m_strFileName, bAscending));
    std::stable_sort(arrOrder.begin(), arrOrder.end(), [&](std::size_t a, std::size_t b) {
        const int nOrder = arrKeys[a].compare(arrKeys[b]);
        if (nOrder == 0) return items[a].m_nFileId < items[b].m_nFileId;
        const bool bAscends = (IsAscii(arrKeys[a]) || IsAscii(arrKeys[b])) == bAscending;
        return bAscends ? nOrder < 0 : nOrder > 0;
    });
}

template <class TValue>
void SortBy(TValue CFileItem::*pValue, std::span<const CFileItem> items, bool bAscending,
            std::vector<std::size_t>& arrOrder) {
    std::stable_sort(arrOrder.begin(), arrOrder.end(), [&](std::size_t a, std::size_t b) {
        return bAscending ? items[a].*pValue < items[b].*pValue : items[b].*pValue < items[a].*pValue;
    });
}

}  // namespace

void SortFiles(std::span<const CFileItem> items, EFileColumn column, bool bAscending,
               std::vector<std::size_t>& arrOrder) {
    switch (column) {
        case EFileColumn::Number:
            return SortBy(&CFileItem::m_nFileId, items, bAscending, arrOrder);
        case EFileColumn::Name:
            return SortByName(items, bAscending, arrOrder);
        case EFileColumn::Size:
            return SortBy(&CFileItem::m_nFileSize, items, bAscending, arrOrder);
    }
}

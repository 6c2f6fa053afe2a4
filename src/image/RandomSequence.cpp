#include "image/RandomSequence.h"

#include <algorithm>
#include <bit>

// The words are filled by a multiplicative generator, 16807 x modulo 2^31 - 1 by Schrage's method, and the
// first ten times as many numbers as there are words are thrown away.
void CRandomSequence::Seed(std::uint32_t nSeed) {
    auto nWord = static_cast<std::int32_t>(nSeed == 0 ? 1 : nSeed);
    for (std::uint32_t& nStored : m_arrWords) {
        nStored = static_cast<std::uint32_t>(nWord);
        const std::int64_t nHigh = nWord / 127773;
        const std::int64_t nLow = nWord % 127773;
        const std::int64_t nNext = 16807 * nLow - 2836 * nHigh;
        nWord = static_cast<std::int32_t>(nNext < 0 ? nNext + 2147483647 : nNext);
    }
    m_nFront = kApart;
    m_nRear = 0;
    for (std::size_t i = 0; i < 10 * kWords; ++i) Next();
}

CRandomSequence::CWords CRandomSequence::Square(const CWords& factors) {
    std::array<std::uint32_t, 2 * kWords> product{};
    for (std::size_t i = 0; i < kWords; ++i)
        for (std::size_t k = 0; k < kWords; ++k) product[i + k] += factors[i] * factors[k];
    for (std::size_t i = product.size() - 1; i >= kWords; --i) {
        product[i - kApart] += product[i];
        product[i - kWords] += product[i];
    }
    CWords square;
    std::copy_n(product.begin(), kWords, square.begin());
    return square;
}

CRandomSequence::CWords CRandomSequence::Words() const {
    CWords words = m_arrWords;
    std::rotate(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(m_nFront), words.end());
    return words;
}

// Each word of the sequence, and so the one n steps ahead, is a sum of multiples of the 31 words at hand. As
// the recurrence is x^31 = x^28 + 1, the multiples are the coefficients of x^n modulo that, found by
// squaring.
void CRandomSequence::Skip(std::uint64_t n) {
    CWords factors{1};
    for (int nBit = static_cast<int>(std::bit_width(n)) - 1; nBit >= 0; --nBit) {
        factors = Square(factors);
        if ((n >> nBit & 1) == 0) continue;
        const std::uint32_t nTop = factors[kWords - 1];
        std::rotate(factors.begin(), factors.end() - 1, factors.end());
        factors[kWords - kApart] += nTop;
    }
    std::array<std::uint32_t, 2 * kWords> words{};
    const CWords known = Words();
    std::copy(known.begin(), known.end(), words.begin());
    for (std::size_t i = kWords; i < words.size(); ++i) words[i] = words[i - kApart] + words[i - kWords];
    m_arrWords.fill(0);
    for (std::size_t i = 0; i < kWords; ++i)
        for (std::size_t k = 0; k < kWords; ++k) m_arrWords[i] += factors[k] * words[i + k];
    m_nFront = 0;
    m_nRear = kWords - kApart;
}

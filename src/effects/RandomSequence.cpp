#include "effects/RandomSequence.h"

#include <algorithm>

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

CRandomSequence::CWords CRandomSequence::Words() const {
    CWords words = m_arrWords;
    std::rotate(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(m_nFront), words.end());
    return words;
}

void CRandomSequence::Skip(std::uint64_t n) {
    CWords words = Words();
    for (; n >= kWords; n -= kWords) {
        for (std::size_t i = 0; i < kApart; ++i) words[i] += words[kWords - kApart + i];
        for (std::size_t i = kApart; i < kWords; ++i) words[i] += words[i - kApart];
    }
    m_arrWords = words;
    m_nFront = 0;
    m_nRear = kWords - kApart;
    for (; n > 0; --n) Next();
}

#include "effects/RandomSequence.h"

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

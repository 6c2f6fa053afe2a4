#include "engines/effects/RandomRewind.h"

#include <algorithm>

CRandomRewind::CRandomRewind(const CRandomSequence& sequence) {
    CRandomSequence ahead = sequence;
    ahead.Skip(CRandomSequence::kWords);
    const CRandomSequence::CWords words = ahead.Words();
    std::copy(words.begin(), words.end(), m_arrWords.begin());
}

const CRandomRewind::CBatch& CRandomRewind::Before() {
    constexpr std::size_t kStep = 16;  // less than the distance to the nearer of the two words
    constexpr std::size_t kOldest = CRandomSequence::kWords;
    constexpr std::size_t kThirdLast = kOldest - 3;
    static_assert(kStep <= kThirdLast && kBatch % kStep == 0);

    std::copy_n(m_arrWords.begin(), CRandomSequence::kWords, m_arrWords.begin() + kBatch);
    for (std::size_t i = kBatch; i > 0; i -= kStep) {
        std::array<std::uint32_t, kStep> words;
        for (std::size_t k = 0; k < kStep; ++k)
            words[k] = m_arrWords[i - kStep + k + kOldest] - m_arrWords[i - kStep + k + kThirdLast];
        std::copy(words.begin(), words.end(), m_arrWords.begin() + static_cast<std::ptrdiff_t>(i - kStep));
    }
    for (std::size_t i = 0; i < kBatch; ++i) m_arrNumbers[i] = m_arrWords[i] >> 1;
    return m_arrNumbers;
}

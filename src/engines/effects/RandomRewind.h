#pragma once

#include <array>
#include <cstdint>

#include "image/RandomSequence.h"

// Gives the numbers that a random sequence has given before, from the last one backwards, batch by batch.
// Going back, a word is a difference of two that lie far behind it, so whole vectors of them are made at a
// time.
class CRandomRewind {
  public:
    static constexpr std::size_t kBatch = 2048;
    using CBatch = std::array<std::uint32_t, kBatch>;

    // Starts where the sequence stands: its last number will be the last of the first batch.
    explicit CRandomRewind(const CRandomSequence& sequence);

    // The numbers before those of the last batch, in the order in which they were given.
    const CBatch& Before();

  private:
    // The words of a batch, and behind them those that follow it.
    std::array<std::uint32_t, kBatch + CRandomSequence::kWords> m_arrWords{};
    CBatch m_arrNumbers{};
};

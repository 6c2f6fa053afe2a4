#include "engines/effects/RandomRewind.h"

#include <gtest/gtest.h>

#include <vector>

TEST(RandomRewind, GivesTheNumbersThatWereTaken) {
    CRandomSequence random;
    std::vector<std::uint32_t> taken;
    for (std::size_t i = 0; i < 3 * CRandomRewind::kBatch + 17; ++i)
        taken.push_back(static_cast<std::uint32_t>(random.Next()));
    CRandomRewind rewind(random);
    for (std::size_t nEnd = taken.size(); nEnd >= CRandomRewind::kBatch; nEnd -= CRandomRewind::kBatch) {
        const CRandomRewind::CBatch& batch = rewind.Before();
        for (std::size_t i = 0; i < batch.size(); ++i)
            ASSERT_EQ(batch[i], taken[nEnd - batch.size() + i]) << nEnd << ": " << i;
    }
}

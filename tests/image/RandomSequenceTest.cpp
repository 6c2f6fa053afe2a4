#include "image/RandomSequence.h"

#include <gtest/gtest.h>
#include <stdlib.h>

namespace {

TEST(RandomSequence, IsTheCLibrarysAlsoWhereNobodySeedsIt) {
    CRandomSequence random;
    ::srand(1);  // what a process starts with
    for (int i = 0; i < 5000; ++i) ASSERT_EQ(random.Next(), ::rand()) << i;
    for (const unsigned nSeed : {0U, 2U, 77U, 2147483647U, 2147483648U, 4294967295U}) {
        random.Seed(nSeed);
        ::srand(nSeed);
        for (int i = 0; i < 500; ++i) ASSERT_EQ(random.Next(), ::rand()) << nSeed << ": " << i;
    }
}

TEST(RandomSequence, SkipsAsIfTheNumbersHadBeenTaken) {
    for (const unsigned nTaken : {0U, 1U, 3U, 28U, 40U})
        for (const unsigned nSkipped : {0U, 1U, 2U, 3U, 28U, 30U, 31U, 32U, 62U, 9638U, 300'001U}) {
            CRandomSequence random;
            for (unsigned i = 0; i < nTaken; ++i) random.Next();
            CRandomSequence skipping = random;
            for (unsigned i = 0; i < nSkipped; ++i) random.Next();
            skipping.Skip(nSkipped);
            ASSERT_EQ(skipping.Words(), random.Words()) << nTaken << " and " << nSkipped;
            for (int i = 0; i < 70; ++i) ASSERT_EQ(skipping.Next(), random.Next());
        }
}

}  // namespace

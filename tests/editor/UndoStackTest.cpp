#include "editor/UndoStack.h"

#include <gtest/gtest.h>

#include "support/Pictures.h"

namespace {

CUndoEntry Entry(int nNumber) {
    return {false, false, static_cast<std::int16_t>(nNumber), 1, std::make_unique<CxImage>()};
}

}  // namespace

// A push onto a full stack loses the oldest entry and no other.
TEST(UndoStack, KeepsTheTenNewest) {
    for (int nPushes = 0; nPushes <= 25; ++nPushes) {
        CUndoStack stack;
        for (int n = 1; n <= nPushes; ++n) stack.Push(Entry(n));
        const int nKept = std::min(nPushes, 10);
        ASSERT_EQ(stack.Count(), nKept);
        for (int n = nPushes; n > nPushes - nKept; --n) {
            ASSERT_FALSE(stack.IsEmpty());
            EXPECT_EQ(stack.Top().nWidth, n);
            stack.Pop();
        }
        EXPECT_TRUE(stack.IsEmpty());
    }
}

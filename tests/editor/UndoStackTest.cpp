#include "editor/UndoStack.h"

#include <gtest/gtest.h>

#include <memory>

// A push onto a full stack loses the oldest state and no other; what has left the stack is let go.
TEST(UndoStack, KeepsTheTenNewest) {
    for (int nPushes = 0; nPushes <= 25; ++nPushes) {
        CUndoStack<std::shared_ptr<int>> stack;
        const auto pLast = std::make_shared<int>(nPushes);
        for (int n = 1; n < nPushes; ++n) stack.Push(std::make_shared<int>(n));
        if (nPushes > 0) stack.Push(pLast);
        const int nKept = std::min(nPushes, 10);
        ASSERT_EQ(stack.Count(), nKept);
        for (int n = nPushes; n > nPushes - nKept; --n) {
            ASSERT_FALSE(stack.IsEmpty());
            EXPECT_EQ(*stack.Top(), n);
            stack.Pop();
            EXPECT_EQ(pLast.use_count(), 1);
        }
        EXPECT_TRUE(stack.IsEmpty());
        stack.Push(pLast);
        stack.Clear();
        EXPECT_TRUE(stack.IsEmpty() && pLast.use_count() == 1);
    }
}

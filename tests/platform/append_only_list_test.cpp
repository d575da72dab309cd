// SPDX-License-Identifier: MIT
#include "platform/append_only_list.h"

#include <gtest/gtest.h>
#include <vector>

namespace quillon {
namespace {

// More than two of the list's chunks.
constexpr int kMany = 1500;

AppendOnlyList<int> numbersBelow(int limit)
{
    AppendOnlyList<int> list;
    for (int i = 0; i < limit; ++i) {
        list.append(i);
    }
    return list;
}

std::vector<int> contentOf(const AppendOnlyList<int>& list)
{
    return std::vector<int>(list.begin(), list.end());
}

TEST(AppendOnlyList, StartsEmpty)
{
    const AppendOnlyList<int> list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(list.begin(), list.end());
}

TEST(AppendOnlyList, KeepsElementsInOrderAcrossChunks)
{
    const AppendOnlyList<int> list = numbersBelow(kMany);
    ASSERT_EQ(list.size(), kMany);
    for (int i = 0; i < kMany; ++i) {
        ASSERT_EQ(list[i], i);
    }
    EXPECT_EQ(list.last(), kMany - 1);
}

TEST(AppendOnlyList, AppendingToOneCopyLeavesTheOtherAsItWas)
{
    AppendOnlyList<int> list = numbersBelow(3);
    const AppendOnlyList<int> copy = list;
    list.append(3);
    EXPECT_EQ(contentOf(copy), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(contentOf(list), (std::vector<int>{0, 1, 2, 3}));
}

TEST(AppendOnlyList, TwoCopiesCanBothGrowDifferently)
{
    AppendOnlyList<int> one = numbersBelow(2);
    AppendOnlyList<int> other = one;
    one.append(10);
    other.append(20);
    other.append(21);
    EXPECT_EQ(contentOf(one), (std::vector<int>{0, 1, 10}));
    EXPECT_EQ(contentOf(other), (std::vector<int>{0, 1, 20, 21}));
}

TEST(AppendOnlyList, AppendingAListAddsItsElements)
{
    AppendOnlyList<int> list = numbersBelow(2);
    list.append(numbersBelow(3));
    EXPECT_EQ(contentOf(list), (std::vector<int>{0, 1, 0, 1, 2}));
}

TEST(AppendOnlyList, CanBeAppendedToItself)
{
    AppendOnlyList<int> list = numbersBelow(2);
    list.append(list);
    EXPECT_EQ(contentOf(list), (std::vector<int>{0, 1, 0, 1}));
}

TEST(AppendOnlyList, AnElementStaysWhereItIsWhileTheListGrows)
{
    AppendOnlyList<int> list = numbersBelow(1);
    const int* const first = &list[0];
    for (int i = 0; i < kMany; ++i) {
        list.append(i);
    }
    EXPECT_EQ(first, &list[0]);
}

TEST(AppendOnlyList, ACopySharesItsElements)
{
    const AppendOnlyList<int> list = numbersBelow(1);
    const AppendOnlyList<int> copy = list; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(&list[0], &copy[0]);
}

TEST(AppendOnlyList, KnowsThatItExtendsAFormerCopy)
{
    AppendOnlyList<int> list = numbersBelow(2);
    const AppendOnlyList<int> former = list;
    list.append(2);
    EXPECT_TRUE(list.isExtensionOf(former));
    EXPECT_FALSE(former.isExtensionOf(list));
}

TEST(AppendOnlyList, IsAnExtensionOfItself)
{
    const AppendOnlyList<int> list = numbersBelow(2);
    EXPECT_TRUE(list.isExtensionOf(list));
}

TEST(AppendOnlyList, ACopyThatGrewOtherwiseIsNoExtension)
{
    AppendOnlyList<int> one = numbersBelow(2);
    AppendOnlyList<int> other = one;
    one.append(10);
    other.append(20);
    EXPECT_FALSE(other.isExtensionOf(one));
    EXPECT_FALSE(one.isExtensionOf(other));
}

TEST(AppendOnlyList, AListMadeAnewIsNoExtensionOfAnEqualOne)
{
    EXPECT_FALSE(numbersBelow(2).isExtensionOf(numbersBelow(2)));
}

TEST(AppendOnlyList, IsEmptyAndUsableAfterItWasMovedFrom)
{
    AppendOnlyList<int> list = numbersBelow(3);
    const AppendOnlyList<int> taken = std::move(list);
    EXPECT_TRUE(list.isEmpty()); // NOLINT(bugprone-use-after-move)
    list.append(7);
    EXPECT_EQ(contentOf(list), (std::vector<int>{7}));
    EXPECT_EQ(contentOf(taken), (std::vector<int>{0, 1, 2}));
}

} // namespace
} // namespace quillon

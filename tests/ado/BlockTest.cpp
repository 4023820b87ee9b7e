#include "ado/Block.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <thread>
#include <utility>
#include <vector>

namespace ado {
namespace {

TEST(Block, OfTheUsualSizeIsGivenToTheNextWhoAsks) {
    const std::byte* first = nullptr;
    {
        const Block block;
        ASSERT_EQ(block.size(), Block::kUsualSize);
        first = block.data();
    }
    const Block again(1);
    EXPECT_EQ(again.size(), Block::kUsualSize);
    EXPECT_EQ(again.data(), first);
}

TEST(Block, LivingAtOnceAreDistinct) {
    const Block one;
    const Block other;
    EXPECT_NE(one.data(), other.data());
}

TEST(Block, LargerThanUsualHasTheSizeAskedForAndIsNotKept) {
    {
        const Block large(Block::kUsualSize + 1);
        EXPECT_EQ(large.size(), Block::kUsualSize + 1);
        std::memset(large.data(), 'x', large.size());
    }
    const Block usual; // would be too small for what follows, had a block of another size been kept
    std::memset(usual.data(), 'y', usual.size());
    EXPECT_EQ(usual.size(), Block::kUsualSize);
}

TEST(Block, MovedFromGivesNothingBack) {
    std::vector<Block> moved;
    {
        Block block;
        moved.push_back(std::move(block));
    }
    const Block next;
    EXPECT_NE(next.data(), moved.front().data());
}

TEST(Block, ManyInTwoThreadsStayApart) {
    const auto work = [](unsigned char mark, bool& intact) {
        for (int round = 0; round < 50; ++round) {
            std::vector<Block> blocks(200);
            for (const Block& block : blocks) {
                std::memset(block.data(), mark, block.size());
            }
            for (const Block& block : blocks) {
                intact = intact && std::to_integer<unsigned char>(block.data()[0]) == mark &&
                         std::to_integer<unsigned char>(block.data()[block.size() - 1]) == mark;
            }
        }
    };
    bool one = true;
    bool other = true;
    std::thread first(work, 1, std::ref(one));
    std::thread second(work, 2, std::ref(other));
    first.join();
    second.join();
    EXPECT_TRUE(one);
    EXPECT_TRUE(other);
}

} // namespace
} // namespace ado

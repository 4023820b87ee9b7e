#include "os/FileLock.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

class FileLock : public testing::Test {
protected:
    const support::TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "righe.locks";
    os::FileLock one{file};
    os::FileLock other{file};
};

TEST_F(FileLock, OfOneByteExcludesOthersAndNoOtherByte) {
    ASSERT_TRUE(one.tryExclusive(5));
    EXPECT_FALSE(other.tryExclusive(5));
    EXPECT_FALSE(other.tryShared(5));
    EXPECT_TRUE(other.tryExclusive(4));
    EXPECT_TRUE(other.tryExclusive(6));
    one.unlock(5);
    EXPECT_TRUE(other.tryExclusive(5));
}

TEST_F(FileLock, IsSharedWithThoseThatShare) {
    ASSERT_TRUE(one.tryShared(7));
    EXPECT_TRUE(other.tryShared(7));
    EXPECT_FALSE(one.tryExclusive(7)) << "the other shares it";
    other.unlock(7);
    EXPECT_TRUE(one.tryExclusive(7));
    EXPECT_FALSE(other.tryShared(7));
}

TEST_F(FileLock, ThatCanNotBecomeExclusiveStaysShared) {
    ASSERT_TRUE(one.tryShared(7));
    ASSERT_TRUE(other.tryShared(7));
    ASSERT_FALSE(one.tryExclusive(7));
    other.unlock(7);
    EXPECT_TRUE(other.heldByOthers(7, 1));
    EXPECT_FALSE(other.tryExclusive(7));
}

TEST_F(FileLock, MayBeTakenTwiceAndIsGivenBackOnce) {
    ASSERT_TRUE(one.tryExclusive(3));
    EXPECT_TRUE(one.tryExclusive(3));
    one.unlock(3);
    EXPECT_TRUE(other.tryExclusive(3));
    one.unlock(3);
    EXPECT_FALSE(one.tryExclusive(3)) << "who doesn't hold it can't give it back";
}

TEST_F(FileLock, IsSeenByOthersAlone) {
    ASSERT_TRUE(one.tryExclusive(5));
    ASSERT_TRUE(one.tryShared(9));
    EXPECT_FALSE(one.heldByOthers(0, 100));
    EXPECT_TRUE(other.heldByOthers(0, 100));
    EXPECT_TRUE(other.heldByOthers(5, 1));
    EXPECT_FALSE(other.heldByOthers(6, 3));
    EXPECT_TRUE(other.heldByOthers(6, 4)) << "a shared one counts";
    ASSERT_TRUE(other.tryShared(9));
    EXPECT_TRUE(one.heldByOthers(9, 1));
    EXPECT_TRUE(one.heldByOthers(0, 100));
    EXPECT_FALSE(one.tryExclusive(9)) << "asking has given nothing away";
    other.unlock(9);
    EXPECT_FALSE(one.heldByOthers(0, 100));
}

TEST_F(FileLock, ReachesToTheLastPlace) {
    ASSERT_TRUE(one.tryExclusive(os::FileLock::kEnd - 1));
    EXPECT_FALSE(other.tryShared(os::FileLock::kEnd - 1));
    EXPECT_TRUE(other.heldByOthers(os::FileLock::kEnd - 1, 1));
}

TEST_F(FileLock, EndsWithItsObject) {
    {
        os::FileLock third(file);
        ASSERT_TRUE(third.tryExclusive(5));
    }
    EXPECT_TRUE(one.tryExclusive(5));
}

TEST_F(FileLock, OfAFileInNoFolderIsAnError) {
    EXPECT_THROW(os::FileLock(folder.path() / "manca" / "righe.locks"), std::filesystem::filesystem_error);
}

} // namespace

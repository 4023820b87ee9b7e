#include "support/CutWire.h"

#include "support/loopback/Loopback.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <string>

namespace support {
namespace {

/// A server at one end of the proxy, a caller at the other.
class CutWires : public testing::Test {
protected:
    void call() {
        caller_.close();
        server_.close();
        caller_ = loopback::call(std::stoi(wire.server().substr(wire.server().find(',') + 1)));
        loopback::arrives(listener_, std::chrono::seconds(10));
        server_ = loopback::accept(listener_);
    }
    void answer(const std::string& text) const { ASSERT_TRUE(server_.send(text.data(), text.size())); }
    /// Reads that many bytes, or up to the end of the connection.
    std::string heard(std::size_t bytes) const {
        std::string text;
        std::array<char, 64> piece{};
        while (text.size() < bytes) {
            const std::size_t count = caller_.receive(piece.data(), piece.size());
            if (count == 0) {
                break;
            }
            text.append(piece.data(), count);
        }
        return text;
    }

private:
    loopback::Socket listener_ = loopback::listener();
    loopback::Socket caller_;
    loopback::Socket server_;

protected:
    CutWire wire{loopback::portOf(listener_)};
};

TEST_F(CutWires, LetEverythingPassAndCountIt) {
    call();
    answer("abc");
    EXPECT_EQ(heard(3), "abc");
    EXPECT_EQ(wire.passed(), 3);
}

TEST_F(CutWires, EndTheConnectionBehindThatManyBytes) {
    call();
    wire.cutAfter(4);
    answer("abcdef");
    EXPECT_EQ(heard(6), "abcd");
}

TEST_F(CutWires, HangUpOnWhoeverCallsUntilTheyAreMended) {
    call();
    wire.cutAfter(0);
    answer("abc");
    EXPECT_EQ(heard(3), "");
    call();
    EXPECT_EQ(heard(1), "");
    wire.mend();
    call();
    answer("abc");
    EXPECT_EQ(heard(3), "abc");
}

} // namespace
} // namespace support

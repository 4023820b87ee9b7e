#include "support/CutWire.h"

#include "support/Loopback.h"

#include <gtest/gtest.h>

#include <array>
#include <poll.h>
#include <string>
#include <utility>

namespace support {
namespace {

/// A server at one end of the proxy, a caller at the other.
class CutWires : public testing::Test {
protected:
    ~CutWires() override {
        hangUp();
        ::close(listener_);
    }
    void call() {
        hangUp();
        caller_ = loopback::call(std::stoi(wire.server().substr(wire.server().find(',') + 1)));
        pollfd question{listener_, POLLIN, 0};
        constexpr int kPatience = 10000;
        ::poll(&question, 1, kPatience);
        server_ = loopback::accept(listener_);
    }
    void answer(const std::string& text) const {
        ASSERT_EQ(::send(server_, text.data(), text.size(), 0), static_cast<ssize_t>(text.size()));
    }
    /// Reads that many bytes, or up to the end of the connection.
    std::string heard(std::size_t bytes) const {
        std::string text;
        std::array<char, 64> piece{};
        while (text.size() < bytes) {
            const ssize_t count = ::recv(caller_, piece.data(), piece.size(), 0);
            if (count <= 0) {
                break;
            }
            text.append(piece.data(), static_cast<std::size_t>(count));
        }
        return text;
    }
    void hangUp() {
        for (int* end : {&caller_, &server_}) {
            if (*end >= 0) {
                ::close(std::exchange(*end, -1));
            }
        }
    }

private:
    int listener_ = loopback::listener();
    int caller_ = -1;
    int server_ = -1;

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

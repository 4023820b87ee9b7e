// The server's side of the protocol: which messages it accepts and refuses.

#include "engine/store/Instance.h"
#include "peer/Client.h"
#include "peer/Procedures.h"
#include "peer/Wire.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace peer {
namespace {

using wire::batch;
using wire::login;
using wire::packet;

TEST(Packets, AreJoinedToMessagesWhateverPiecesCome) {
    Bytes wire = packet(1, 0, {1, 2});
    const Bytes rest = packet(1, 1, {3});
    wire.insert(wire.end(), rest.begin(), rest.end());
    PacketReader reader;
    for (std::size_t i = 0; i + 1 < wire.size(); ++i) {
        reader.feed(std::span(wire).subspan(i, 1));
        EXPECT_FALSE(reader.next());
    }
    reader.feed(std::span(wire).last(1));
    const auto message = reader.next();
    ASSERT_TRUE(message);
    EXPECT_EQ(message->type, PacketType::Batch);
    EXPECT_EQ(message->body, (Bytes{1, 2, 3}));
    EXPECT_FALSE(reader.next());
}

TEST(Packets, OfAMessageToBeIgnoredAreDropped) {
    PacketReader reader;
    reader.feed(packet(1, 3, {1}));
    reader.feed(packet(1, 1, {2}));
    EXPECT_EQ(reader.next()->body, Bytes{2});
}

TEST(Packets, OfAnUnknownTypeAnImpossibleLengthOrTwoMessagesMixedAreRefused) {
    const Bytes mixed = [] {
        Bytes two = packet(1, 0, {1});
        const Bytes second = packet(3, 1, {2});
        two.insert(two.end(), second.begin(), second.end());
        return two;
    }();
    for (const Bytes& wire : {packet(99, 1, {}), packet(4, 1, {}), Bytes{1, 1, 0, 7, 0, 0, 0, 0},
                              Bytes{1, 1, 0xFF, 0xFF, 0, 0, 0, 0}, mixed}) {
        PacketReader reader;
        reader.feed(wire);
        EXPECT_THROW(reader.next(), ProtocolError);
    }
}

TEST(Packets, AreCutToTheAgreedSize) {
    const Bytes out = packets(PacketType::Response, Bytes(20, 7), 16);
    ASSERT_EQ(out.size(), 20 + 3 * kHeaderBytes);
    EXPECT_EQ(out[1], 0);
    EXPECT_EQ(out[16 + 1], 0);
    EXPECT_EQ(out[32 + 1], 1) << "the last one ends the message";
    EXPECT_EQ(out[32 + 3], 12);
}

TEST(LoginRecords, TellWhoAsks) {
    const LoginRecord record = readLogin(login("giulia", "perché", "Vabodati"));
    EXPECT_EQ(record.user, "giulia");
    EXPECT_EQ(record.password, "perché");
    EXPECT_EQ(record.database, "Vabodati");
    EXPECT_EQ(record.packetSize, 4096U);
    EXPECT_FALSE(record.integrated);
    EXPECT_FALSE(record.atLeast72());
}

TEST(LoginRecords, CutShortOrPointingOutsideThemselvesAreRefused) {
    const Bytes whole = login("sa", "segreta", "Vabodati");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_THROW(readLogin(std::span(whole).first(length)), ProtocolError) << length;
    }
    Bytes outside = whole;
    outside[40] = outside[41] = 0xFF;
    EXPECT_THROW(readLogin(outside), ProtocolError);
    Bytes old = whole;
    old[7] = 0x70;
    EXPECT_THROW(readLogin(old), ProtocolError);
}

TEST(PreLogins, AreToldThatNothingIsEncrypted) {
    const Bytes answer = answerPreLogin(Bytes{0xFF});
    ByteReader in(answer);
    while (in.u8() != 1) {
        in.u32();
    }
    const std::size_t offset = in.u16BigEndian();
    EXPECT_EQ(in.at(offset, in.u16BigEndian())[0], 2);
    EXPECT_THROW(answerPreLogin(Bytes{0, 0, 200, 0, 6}), ProtocolError);
}

TEST(Calls, OfPreparedTextsBecomeBatches) {
    std::map<std::int32_t, std::string> prepared;
    std::int32_t last = 0;
    const ProcedureCall execute{"sp_executesql",
                                {{"", "", "select '@a', @a, @b, @@rowcount"},
                                 {"", "", "@a int, @b int"},
                                 {"@a", "1", "1"},
                                 {"@b", "N'x'", "x"}}};
    EXPECT_EQ(procedureText(execute, prepared, last).batch, "select '@a', 1, N'x', @@rowcount");
    const auto made =
        procedureText({"sp_prepare", {{"", "NULL", ""}, {"", "", "@a int"}, {"", "", "select @a"}}}, prepared, last);
    ASSERT_EQ(made.handle, 1);
    EXPECT_EQ(made.batch, "");
    EXPECT_EQ(procedureText({"sp_execute", {{"", "1", "1"}, {"", "7", "7"}}}, prepared, last).batch, "select 7");
    procedureText({"sp_unprepare", {{"", "1", "1"}}}, prepared, last);
    EXPECT_TRUE(prepared.empty());
    EXPECT_EQ(procedureText({"sp_help", {{"@x", "1", "1"}}}, prepared, last).batch, "EXEC sp_help @x = 1");
    EXPECT_TRUE(procedureText({"sp_cursoropen", {}}, prepared, last).unknown);
}

/// A client that sends the given bytes and then disconnects.
class Script : public Channel {
public:
    explicit Script(std::vector<Bytes> sent) : sent_(std::move(sent)) {}
    Bytes read() override { return place_ < sent_.size() ? sent_[place_++] : Bytes(); }
    void write(std::span<const std::uint8_t> bytes) override { got.insert(got.end(), bytes.begin(), bytes.end()); }
    bool waiting() override { return false; }
    bool heard(const std::string& text) const {
        const Bytes wide = ByteWriter().ucs2(text).bytes;
        return std::search(got.begin(), got.end(), wide.begin(), wide.end()) != got.end();
    }

    Bytes got;

private:
    std::vector<Bytes> sent_;
    std::size_t place_ = 0;
};

class Conversation : public ::testing::Test {
protected:
    Conversation() { instance->addLogin("sa", "segreta"); }

    Script served(std::vector<Bytes> sent) const {
        Script script(std::move(sent));
        Client(script, instance).serve();
        return script;
    }

    support::TemporaryFolder folder;
    std::shared_ptr<engine::Instance> instance = engine::Instance::create(
        folder.path() / "server", {[this](std::string_view path) { return folder.path() / path; }});
    const Bytes hello = packet(16, 1, login("sa", "segreta", "master"));
};

TEST_F(Conversation, RowsMessagesAndErrorsComeBack) {
    EXPECT_TRUE(served({hello, batch("select N'trovato'")}).heard("trovato"));
    EXPECT_TRUE(served({hello, batch("print 'detto'")}).heard("detto"));
    EXPECT_TRUE(served({hello, batch("select * from manca")}).heard("Invalid object name 'manca'."));
}

TEST_F(Conversation, AWrongPasswordEndsIt) {
    const Script script = served({packet(16, 1, login("sa", "altra", "")), batch("print 'detto'")});
    EXPECT_TRUE(script.heard("Login failed for user 'sa'."));
    EXPECT_FALSE(script.heard("detto"));
}

TEST_F(Conversation, ARequestBeforeTheLoginIsGarbage) {
    EXPECT_THROW(served({batch("select 1")}), ProtocolError);
}

TEST_F(Conversation, AnythingCutShortIsWaitedForAndEndsWithTheClient) {
    const Bytes whole = batch("select 1");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_NO_THROW(served({hello, cut})) << length;
    }
}

TEST_F(Conversation, ABatchInWhichNothingRunsHasAnEndAllTheSame) {
    const Bytes end = {0xFD, 0, 0, 0xC1, 0, 0, 0, 0, 0};
    const std::size_t greeted = served({hello}).got.size();
    for (const char* text : {"", "-- nothing", "if 1 = 2 print 'detto'"}) {
        const Script script = served({hello, batch(text)});
        const auto answer = std::span(script.got).subspan(greeted);
        ASSERT_EQ(answer.size(), kHeaderBytes + end.size()) << text;
        EXPECT_TRUE(std::ranges::equal(answer.subspan(kHeaderBytes), end)) << text;
    }
}

TEST_F(Conversation, AnAttentionIsAcknowledged) {
    const Script script = served({hello, packet(6, 1, {})});
    const Bytes acknowledged = {0xFD, 0x20, 0};
    EXPECT_NE(std::search(script.got.begin(), script.got.end(), acknowledged.begin(), acknowledged.end()),
              script.got.end());
}

} // namespace
} // namespace peer

// The server's side of the protocol: which messages it accepts and refuses.

#include "peer/ConversationFixture.h"

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

TEST(Packets, TellWhetherTheirMessageIsToBeIgnoredAndTheConnectionReset) {
    PacketReader reader;
    reader.feed(packet(1, 3, {1}));
    reader.feed(packet(1, 8, {2}));
    reader.feed(packet(1, 0x11, {3}));
    reader.feed(packet(3, 0x11, {4}));
    reader.feed(packet(3, 1, {5}));
    EXPECT_TRUE(reader.next()->ignored);
    const auto reset = reader.next();
    EXPECT_FALSE(reset->ignored);
    EXPECT_EQ(reset->reset, Message::Reset::All) << "its first packet tells";
    EXPECT_EQ(reader.next()->reset, Message::Reset::AllButTransaction);
    EXPECT_EQ(reader.next()->reset, Message::Reset::None);
}

TEST(Packets, OfNoRequestOfAnImpossibleLengthOrTwoMessagesMixedAreRefused) {
    const Bytes mixed = [] {
        Bytes two = packet(1, 0, {1});
        const Bytes second = packet(3, 1, {2});
        two.insert(two.end(), second.begin(), second.end());
        return two;
    }();
    for (const Bytes& wire : {packet(0, 1, {}), packet(4, 1, {}), Bytes{1, 1, 0, 7, 0, 0, 0, 0},
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
    EXPECT_EQ(record.version, 0x71000001U);
    EXPECT_EQ(readLogin(login("sa", "", "", 0x74000004)).version, 0x72090002U) << "the newest that is spoken";
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

TEST_F(Conversation, RowsMessagesAndErrorsComeBack) {
    EXPECT_TRUE(served({hello(), batch("select N'trovato'")}).heard("trovato"));
    EXPECT_TRUE(served({hello(), batch("print 'detto'")}).heard("detto"));
    EXPECT_TRUE(served({hello(), batch("select * from manca")}).heard("Invalid object name 'manca'."));
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
        EXPECT_NO_THROW(served({hello(), cut})) << length;
    }
}

TEST_F(Conversation, ABatchInWhichNothingRunsHasAnEndAllTheSame) {
    const Bytes end = {0xFD, 0, 0, 0, 0, 0, 0, 0, 0};
    const std::size_t greeted = served({hello()}).got.size();
    for (const char* text : {"", "-- nothing", "if 1 = 2 print 'detto'"}) {
        const Script script = served({hello(), batch(text)});
        const auto answer = std::span(script.got).subspan(greeted);
        ASSERT_EQ(answer.size(), kHeaderBytes + end.size()) << text;
        EXPECT_TRUE(std::ranges::equal(answer.subspan(kHeaderBytes), end)) << text;
    }
}

} // namespace
} // namespace peer

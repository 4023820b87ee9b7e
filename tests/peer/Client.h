#pragma once

#include "engine/run/Session.h"
#include "engine/store/Instance.h"
#include "peer/Login.h"
#include "peer/Packets.h"
#include "peer/Tokens.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace peer {

/// The other end of a connection. `read` waits for bytes and returns none at the end.
class Channel {
public:
    virtual ~Channel() = default;
    virtual Bytes read() = 0;
    virtual void write(std::span<const std::uint8_t> bytes) = 0;
    /// Whether bytes have arrived that aren't read yet.
    virtual bool waiting() = 0;
};

/// One client's connection from its first byte to its last.
class Client {
public:
    Client(Channel& channel, std::shared_ptr<engine::Instance> instance);

    /// Serves until the client disconnects. Throws ProtocolError for invalid bytes.
    void serve();

private:
    struct Done {
        std::uint16_t status;
        std::uint64_t rows;
    };

    std::optional<Message> receive();
    bool logIn(const Message& message);
    void answer(const Message& message);
    void batchMessage(ByteReader in);
    void procedureMessage(ByteReader in);
    void transactionMessage(ByteReader in);

    void run(std::string_view text);
    void runResult(engine::Batch& batch);
    void report(const engine::Error& error);
    void statementDone(Done done);
    void releaseHeld(); ///< sends it, marked as followed by more

    void skipHeaders(ByteReader& in) const;
    bool askedToStop();
    void flush(bool last);

    Channel& channel_;
    std::shared_ptr<engine::Instance> instance_;
    std::unique_ptr<engine::Session> session_;
    PacketReader reader_;
    LoginRecord login_;
    TokenWriter tokens_{0x71000001};
    std::optional<Done> held_; ///< the last statement's end, not sent until it is known whether more follows
    bool stopped_ = false;
    std::map<std::int32_t, std::string> prepared_;
    std::int32_t lastPrepared_ = 0;
    std::uint64_t transaction_ = 0;
};

} // namespace peer

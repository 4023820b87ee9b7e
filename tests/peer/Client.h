#pragma once

#include "engine/run/Session.h"
#include "engine/store/Instance.h"
#include "peer/Login.h"
#include "peer/Packets.h"
#include "peer/Procedures.h"
#include "peer/Tokens.h"

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

    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Serves until the client disconnects. Throws ProtocolError for invalid bytes.
    void serve();

private:
    struct Done {
        std::uint16_t status;
        std::uint16_t command;
        std::uint64_t rows = 0;
        DoneKind kind = DoneKind::Statement;
    };

    std::optional<Message> receive();
    bool logIn(const Message& message);
    void openSession();
    void answer(const Message& message);
    void request(const Message& message);
    void reset(Message::Reset how);
    void acknowledgeAttention();

    void batchMessage(ByteReader in);
    void procedureMessage(ByteReader in);
    void call(const ProcedureCall& call);
    void transactionMessage(ByteReader in);

    /// Runs a batch, of which the statements are told as those of a procedure where `inside`. 0, or the last error.
    int run(std::string_view text, DoneKind inside);
    void runResult(engine::Batch& batch, DoneKind inside);
    std::uint64_t sendRows(engine::Batch& batch);
    void report(const engine::Error& error, Done done);
    void statementDone(Done done);
    bool inTransaction();
    void releaseHeld(); ///< sends it, marked as followed by more

    void skipHeaders(ByteReader& in) const;
    static void lookForAttention() noexcept; ///< the engine calls it while a statement runs
    /// Reads what has arrived meanwhile: whether the client asks to stop, or has gone.
    bool askedToStop() noexcept;
    void flush(bool last);

    Channel& channel_;
    std::shared_ptr<engine::Instance> instance_;
    std::unique_ptr<engine::Session> session_;
    PacketReader reader_;
    std::optional<Message> queued_; ///< arrived while the one before was answered
    LoginRecord login_;
    TokenWriter tokens_{0x71000001};
    std::optional<Done> held_; ///< the last statement's end, not sent until it is known whether more follows
    bool stopped_ = false;
    PreparedTexts prepared_;
    std::uint64_t transaction_ = 0;
};

} // namespace peer

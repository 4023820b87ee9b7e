#include "peer/Client.h"

#include "engine/errors/RunErrors.h"
#include "engine/store/Idler.h"

#include <utility>

namespace peer {

namespace {

/// The one error of the protocol itself.
constexpr engine::errors::ErrorText<> kIncorrectStream{
    4002, engine::Error::Reach::Statement, "The incoming tabular data stream (TDS) protocol stream is incorrect."};

/// The one that this thread serves.
thread_local Client* served = nullptr;

int severity(int number) {
    switch (number) {
    case 102:
    case 105:
    case 156:
        return 15;
    case 4060:
        return 11;
    case 18456:
        return 14;
    default:
        return 16;
    }
}

} // namespace

Client::Client(Channel& channel, std::shared_ptr<engine::Instance> instance)
    : channel_(channel), instance_(std::move(instance)) {
    served = this;
    engine::setIdler(lookForAttention);
}

Client::~Client() {
    engine::setIdler(nullptr);
    served = nullptr;
}

void Client::serve() {
    while (auto message = receive()) {
        if (message->type == PacketType::PreLogin) {
            channel_.write(packets(PacketType::Response, answerPreLogin(message->body), login_.packetSize));
        } else if (message->type == PacketType::Login) {
            if (!logIn(*message)) {
                return;
            }
        } else if (session_) {
            answer(*message);
        } else {
            throw ProtocolError("a request before the login");
        }
    }
}

std::optional<Message> Client::receive() {
    while (true) {
        if (queued_) {
            return std::exchange(queued_, std::nullopt);
        }
        if (auto message = reader_.next()) {
            return message;
        }
        const Bytes bytes = channel_.read();
        if (bytes.empty()) {
            return std::nullopt;
        }
        reader_.feed(bytes);
    }
}

bool Client::logIn(const Message& message) {
    login_ = readLogin(message.body);
    tokens_ = TokenWriter(login_.version);
    try {
        if (login_.integrated || login_.user.empty()) {
            throw engine::errors::loginFailed(login_.user);
        }
        openSession();
    } catch (const engine::Error& error) {
        report(error, {done::kError, command::kNone});
        flush(true);
        return false;
    }
    tokens_.databaseChanged(session_->database(), "master");
    tokens_.collation();
    tokens_.loginAcknowledged();
    tokens_.packetSize(login_.packetSize, 4096);
    statementDone({done::kFinal, command::kNone});
    flush(true);
    return true;
}

void Client::openSession() {
    session_ = engine::Session::open(instance_, {login_.user, login_.password, login_.database});
}

void Client::answer(const Message& message) {
    if (message.type == PacketType::Attention) {
        acknowledgeAttention(); // its request has been answered already
        return;
    }
    stopped_ = false;
    try {
        if (message.ignored) {
            statementDone({done::kError, command::kNone});
        } else {
            reset(message.reset);
            request(message);
        }
    } catch (const engine::Error& error) {
        report(error, {done::kError, command::kNone});
    } catch (const ProtocolError&) {
        report(kIncorrectStream(), {done::kError, command::kNone});
    }
    flush(true);
    if (stopped_) {
        acknowledgeAttention();
    }
}

void Client::request(const Message& message) {
    ByteReader in(message.body);
    switch (message.type) {
    case PacketType::Batch:
        skipHeaders(in);
        batchMessage(in);
        return;
    case PacketType::Rpc:
        skipHeaders(in);
        procedureMessage(in);
        return;
    case PacketType::TransactionManager:
        skipHeaders(in);
        transactionMessage(in);
        return;
    default:
        throw kIncorrectStream();
    }
}

/// The connection becomes as it was after its login.
void Client::reset(Message::Reset how) {
    if (how == Message::Reset::None) {
        return;
    }
    if (how == Message::Reset::AllButTransaction && inTransaction()) {
        throw kIncorrectStream(); // a session takes its transaction with it
    }
    const std::string before = session_->database();
    session_ = nullptr;
    openSession();
    prepared_.clear();
    if (session_->database() != before) {
        tokens_.databaseChanged(session_->database(), before);
    }
    tokens_.connectionReset();
}

void Client::acknowledgeAttention() {
    statementDone({done::kAttention, command::kNone});
    flush(true);
}

void Client::skipHeaders(ByteReader& in) const {
    if (!login_.atLeast72() || in.left() < 4) {
        return;
    }
    const std::uint32_t length = in.u32();
    if (length < 4) {
        throw ProtocolError("headers of an impossible length");
    }
    in.take(length - 4);
}

void Client::report(const engine::Error& error, Done done) {
    releaseHeld();
    tokens_.error(error.number(), severity(error.number()), error.what());
    statementDone(done);
}

void Client::releaseHeld() {
    if (const auto done = std::exchange(held_, std::nullopt)) {
        tokens_.done(done->kind, static_cast<std::uint16_t>(done->status | done::kMore), done->command, done->rows);
    }
}

void Client::statementDone(Done done) {
    releaseHeld();
    held_ = done;
}

void Client::lookForAttention() noexcept {
    if (served != nullptr && !served->stopped_ && served->askedToStop()) {
        served->stopped_ = true;
        engine::giveUp();
    }
}

bool Client::askedToStop() noexcept {
    try {
        if (queued_ || !channel_.waiting()) {
            return false;
        }
        const Bytes bytes = channel_.read();
        reader_.feed(bytes);
        auto message = reader_.next();
        if (message && message->type != PacketType::Attention) {
            queued_ = std::move(message);
            return false;
        }
        return bytes.empty() || message;
    } catch (const std::exception&) {
        return true; // `receive` meets it again
    }
}

void Client::flush(bool last) {
    if (const auto done = last ? std::exchange(held_, std::nullopt) : std::nullopt) {
        tokens_.done(done->kind, done->status, done->command, done->rows);
    }
    Bytes& bytes = tokens_.bytes();
    const std::size_t room = login_.packetSize - kHeaderBytes;
    const std::size_t whole = last ? bytes.size() : bytes.size() / room * room;
    if (whole == 0 && !last) {
        return;
    }
    channel_.write(packets(PacketType::Response, std::span(bytes).first(whole), login_.packetSize, last));
    bytes.erase(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(whole));
}

} // namespace peer

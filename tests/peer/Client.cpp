#include "peer/Client.h"

#include "engine/errors/RunErrors.h"
#include "peer/Procedures.h"

namespace peer {

namespace {

constexpr std::size_t kRowsBetweenLooks = 64;

/// The one error of the protocol itself.
constexpr engine::errors::ErrorText<> kIncorrectStream{
    4002, engine::Error::Reach::Statement, "The incoming tabular data stream (TDS) protocol stream is incorrect."};

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
    : channel_(channel), instance_(std::move(instance)) {}

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
        session_ = engine::Session::open(instance_, {login_.user, login_.password, login_.database});
    } catch (const engine::Error& error) {
        report(error);
        flush(true);
        return false;
    }
    tokens_.databaseChanged(session_->database(), "master");
    tokens_.collation();
    tokens_.loginAcknowledged();
    tokens_.packetSize(login_.packetSize, 4096);
    statementDone({done::kFinal, 0});
    flush(true);
    return true;
}

void Client::answer(const Message& message) {
    stopped_ = false;
    ByteReader in(message.body);
    switch (message.type) {
    case PacketType::Batch:
        skipHeaders(in);
        batchMessage(in);
        break;
    case PacketType::Rpc:
        skipHeaders(in);
        procedureMessage(in);
        break;
    case PacketType::TransactionManager:
        skipHeaders(in);
        transactionMessage(in);
        break;
    case PacketType::Attention:
        stopped_ = true;
        break;
    default:
        report(kIncorrectStream());
        break;
    }
    if (stopped_) {
        statementDone({done::kAttention, 0});
    }
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

void Client::batchMessage(ByteReader in) {
    run(in.ucs2(in.left() / 2));
    if (!held_) { // no statement ran, but the client waits for an end
        statementDone({done::kFinal, 0});
    }
}

void Client::run(std::string_view text) {
    const std::string before = session_->database();
    try {
        const auto batch = session_->execute(text);
        for (bool more = true; more && !stopped_;) {
            try {
                more = batch->nextResult();
                if (more) {
                    runResult(*batch);
                }
            } catch (const engine::Error& error) {
                report(error);
                more = error.reach() == engine::Error::Reach::Statement;
            }
        }
    } catch (const engine::Error& error) {
        report(error);
    }
    if (session_->database() != before) {
        tokens_.databaseChanged(session_->database(), before);
    }
}

void Client::runResult(engine::Batch& batch) {
    for (const auto& message : batch.messages()) {
        tokens_.message(message.number, message.text);
    }
    if (!batch.hasRows()) {
        const bool counted = batch.affected() >= 0;
        statementDone(
            {counted ? done::kCount : done::kFinal, counted ? static_cast<std::uint64_t>(batch.affected()) : 0});
        return;
    }
    releaseHeld();
    tokens_.columns(batch.columns());
    std::uint64_t rows = 0;
    while (const engine::ResultRow* row = stopped_ ? nullptr : batch.nextRow()) {
        tokens_.row(*row, batch.columns());
        if (++rows % kRowsBetweenLooks == 0) {
            flush(false);
            stopped_ = askedToStop();
        }
    }
    if (!stopped_) {
        statementDone({done::kCount, rows});
    }
}

void Client::report(const engine::Error& error) {
    releaseHeld();
    tokens_.error(error.number(), severity(error.number()), error.what());
    statementDone({done::kError, 0});
}

void Client::releaseHeld() {
    if (held_) {
        tokens_.statementDone(static_cast<std::uint16_t>(held_->status | done::kMore), held_->rows);
    }
    held_.reset();
}

void Client::statementDone(Done done) {
    releaseHeld();
    held_ = done;
}

void Client::procedureMessage(ByteReader in) {
    const ProcedureCall call = readProcedureCall(in);
    const ProcedureText text = procedureText(call, prepared_, lastPrepared_);
    if (text.unknown) {
        report(engine::errors::procedureMissing(call.name));
        return;
    }
    if (!text.batch.empty()) {
        run(text.batch);
    }
    releaseHeld();
    tokens_.returnStatus(0);
    if (text.handle) {
        tokens_.returnValue("", *text.handle);
    }
    tokens_.procedureDone(done::kFinal);
}

void Client::transactionMessage(ByteReader in) {
    constexpr std::uint16_t kBegin = 5, kCommit = 7, kRollback = 8;
    constexpr std::uint8_t kCommitted = 9, kRolledBack = 10;
    const std::uint16_t request = in.u16();
    if (request == kBegin) {
        run("BEGIN TRANSACTION");
        tokens_.transactionBegun(++transaction_);
    } else if (request == kCommit || request == kRollback) {
        run(request == kCommit ? "COMMIT TRANSACTION" : "ROLLBACK TRANSACTION");
        tokens_.transactionEnded(request == kCommit ? kCommitted : kRolledBack, transaction_);
    } else {
        report(kIncorrectStream());
    }
}

bool Client::askedToStop() {
    if (!channel_.waiting()) {
        return false;
    }
    const Bytes bytes = channel_.read();
    reader_.feed(bytes);
    const auto message = reader_.next();
    if (message && message->type != PacketType::Attention) {
        throw ProtocolError("a request before the answer to the last one");
    }
    return bytes.empty() || message;
}

void Client::flush(bool last) {
    if (last && held_) {
        tokens_.statementDone(held_->status, held_->rows);
        held_.reset();
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

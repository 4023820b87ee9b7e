// The three requests of a client that is logged in: a batch, calls of procedures, the beginning and the end of a
// transaction.

#include "peer/Client.h"

namespace peer {

namespace {

constexpr std::size_t kRowsBetweenLooks = 64;

/// An int as type and value.
Bytes integerValue(std::int32_t value) {
    return ByteWriter().u8(0x26).u8(4).u8(4).u32(static_cast<std::uint32_t>(value)).bytes;
}

const char* isolationName(std::uint8_t level) {
    switch (level) {
    case 0:
        return "";
    case 1:
        return "READ UNCOMMITTED";
    case 2:
        return "READ COMMITTED";
    case 3:
        return "REPEATABLE READ";
    case 4:
        return "SERIALIZABLE";
    default:
        return "SNAPSHOT";
    }
}

} // namespace

void Client::batchMessage(ByteReader in) {
    run(in.ucs2(in.left() / 2), DoneKind::Statement);
    if (!held_) { // no statement ran, but the client waits for an end
        statementDone({done::kFinal, command::kNone});
    }
}

int Client::run(std::string_view text, DoneKind inside) {
    const std::string before = session_->database();
    const DoneKind kind = inside == DoneKind::Statement ? DoneKind::Statement : DoneKind::InProcedure;
    int failed = 0;
    const auto failure = [&](const engine::Error& error, engine::Verb verb) {
        if (!stopped_) {
            failed = error.number();
            report(error, {done::kError, commandOf(verb), 0, kind});
        }
    };
    try {
        const auto batch = session_->execute(text);
        for (bool more = true; more && !stopped_;) {
            try {
                more = batch->nextResult();
                if (more && !stopped_) {
                    runResult(*batch, inside);
                }
            } catch (const engine::Error& error) {
                failure(error, batch->verb());
                more = error.reach() == engine::Error::Reach::Statement;
            }
        }
    } catch (const engine::Error& error) {
        failure(error, engine::Verb::Other);
    }
    if (stopped_) {
        statementDone({done::kError, command::kNone, 0, kind});
    }
    if (session_->database() != before) {
        tokens_.databaseChanged(session_->database(), before);
    }
    return failed;
}

void Client::runResult(engine::Batch& batch, DoneKind inside) {
    const DoneKind kind = inside == DoneKind::Statement ? DoneKind::Statement : DoneKind::InProcedure;
    const engine::Verb verb = batch.verb();
    if (!batch.messages().empty() || batch.hasRows()) {
        releaseHeld();
    }
    for (const auto& message : batch.messages()) {
        tokens_.message(message.number, message.text);
    }
    if (verb == engine::Verb::Execute) {
        if (batch.hasRows()) {
            const std::uint64_t rows = sendRows(batch);
            statementDone({done::kCount, command::kSelect, rows, DoneKind::InProcedure});
        }
        if (inside != DoneKind::Procedure) {
            releaseHeld();
            tokens_.returnStatus(0);
            statementDone({done::kFinal, command::kExecute, 0, DoneKind::Procedure});
        }
    } else if (batch.hasRows()) {
        const std::uint64_t rows = sendRows(batch);
        statementDone({done::kCount, commandOf(verb), rows, kind});
    } else if (batch.affected() >= 0) {
        statementDone({done::kCount, commandOf(verb), static_cast<std::uint64_t>(batch.affected()), kind});
    } else {
        statementDone({done::kFinal, commandOf(verb), 0, kind});
    }
}

/// The description of the columns and the rows; how many.
std::uint64_t Client::sendRows(engine::Batch& batch) {
    tokens_.columns(batch.columns());
    std::uint64_t rows = 0;
    while (const engine::ResultRow* row = stopped_ ? nullptr : batch.nextRow()) {
        tokens_.row(*row, batch.columns());
        if (++rows % kRowsBetweenLooks == 0) {
            flush(false);
            stopped_ = stopped_ || askedToStop();
        }
    }
    return rows;
}

void Client::procedureMessage(ByteReader in) {
    for (const ProcedureCall& each : readProcedureCalls(in)) {
        if (!stopped_) {
            call(each);
        }
    }
}

void Client::call(const ProcedureCall& call) {
    try {
        const ProcedureText text = procedureText(call, prepared_);
        const int failed = text.batch.empty() ? 0 : run(text.batch, text.inside);
        releaseHeld();
        tokens_.returnStatus(failed);
        for (std::size_t i = 0; i < call.parameters.size(); ++i) {
            const Parameter& parameter = call.parameters[i];
            const bool handle = i == 0 && text.handle;
            if (handle || parameter.byReference) { // the dialect gives no variable another value
                tokens_.returnValue(static_cast<std::uint16_t>(i), parameter.name,
                                    handle ? integerValue(*text.handle) : parameter.raw);
            }
        }
        statementDone({done::kFinal, command::kExecute, 0, DoneKind::Procedure});
    } catch (const engine::Error& error) {
        report(error, {done::kError, command::kExecute, 0, DoneKind::Procedure});
    }
}

void Client::transactionMessage(ByteReader in) {
    constexpr std::uint16_t kBegin = 5, kCommit = 7, kRollback = 8;
    constexpr std::uint8_t kCommitted = 9, kRolledBack = 10, kBeginsAnother = 1;
    const auto named = [&in](const std::string& statement) {
        const std::string name = in.left() > 0 ? in.ucs2(in.u8() / 2) : std::string();
        return statement + (name.empty() ? "" : " [" + name + "]");
    };
    const auto begin = [&] {
        const std::string isolation = isolationName(in.left() > 0 ? in.u8() : 0);
        const std::string text = named("BEGIN TRANSACTION");
        if (!isolation.empty()) {
            session_->execute("SET TRANSACTION ISOLATION LEVEL " + isolation)->nextResult();
        }
        if (run(text, DoneKind::Statement) == 0) {
            tokens_.transactionBegun(++transaction_);
        }
    };
    const std::uint16_t request = in.u16();
    if (request == kBegin) {
        begin();
    } else if (request == kCommit || request == kRollback) {
        const std::string text = named(request == kCommit ? "COMMIT TRANSACTION" : "ROLLBACK TRANSACTION");
        const bool another = in.left() > 0 && in.u8() == kBeginsAnother;
        if (run(text, DoneKind::Statement) != 0) {
            return;
        }
        tokens_.transactionEnded(request == kCommit ? kCommitted : kRolledBack, transaction_);
        if (another) {
            begin();
        }
    } else {
        throw ProtocolError("unknown request of a transaction");
    }
}

bool Client::inTransaction() {
    const auto batch = session_->execute("SELECT @@TRANCOUNT");
    batch->nextResult();
    return batch->nextRow()->integer(0) > 0;
}

} // namespace peer

#include "peer/Tokens.h"

namespace peer {

namespace {

constexpr std::string_view kServerName = "PEER";

} // namespace

std::uint16_t commandOf(engine::Verb verb) {
    switch (verb) {
    case engine::Verb::Select:
        return command::kSelect;
    case engine::Verb::Insert:
        return command::kInsert;
    case engine::Verb::Update:
        return command::kUpdate;
    case engine::Verb::Delete:
        return command::kDelete;
    case engine::Verb::CreateTable:
        return command::kCreateTable;
    case engine::Verb::SetOption:
        return command::kSet;
    case engine::Verb::Execute:
        return command::kExecute;
    case engine::Verb::Begin:
        return command::kBegin;
    case engine::Verb::Commit:
        return command::kCommit;
    case engine::Verb::Rollback:
        return command::kRollback;
    case engine::Verb::Other:
        break;
    }
    return command::kNone;
}

void TokenWriter::loginAcknowledged() {
    ByteWriter body;
    body.u8(1);
    for (int shift = 24; shift >= 0; shift -= 8) {
        body.u8(static_cast<std::uint8_t>(version_ >> shift));
    }
    body.shortText("Microsoft SQL Server").u8(10).u8(50).u8(0x06).u8(0x40);
    out_.u8(0xAD).u16(static_cast<std::uint16_t>(body.bytes.size())).raw(body.bytes);
}

void TokenWriter::change(std::uint8_t type, const ByteWriter& now, const ByteWriter& before) {
    out_.u8(0xE3).u16(static_cast<std::uint16_t>(1 + now.bytes.size() + before.bytes.size())).u8(type);
    out_.raw(now.bytes).raw(before.bytes);
}

void TokenWriter::databaseChanged(std::string_view now, std::string_view before) {
    change(1, ByteWriter().shortText(now), ByteWriter().shortText(before));
}

void TokenWriter::packetSize(std::uint32_t now, std::uint32_t before) {
    change(4, ByteWriter().shortText(std::to_string(now)), ByteWriter().shortText(std::to_string(before)));
}

void TokenWriter::collation() {
    change(7, ByteWriter().u8(5).raw(kCollation), ByteWriter().u8(0));
}

void TokenWriter::transactionBegun(std::uint64_t descriptor) {
    change(8, ByteWriter().u8(8).u64(descriptor), ByteWriter().u8(0));
}

void TokenWriter::transactionEnded(std::uint8_t how, std::uint64_t descriptor) {
    change(how, ByteWriter().u8(0), ByteWriter().u8(8).u64(descriptor));
}

void TokenWriter::notice(std::uint8_t token, int number, int severity, std::string_view text) {
    ByteWriter body;
    body.u32(static_cast<std::uint32_t>(number)).u8(1).u8(static_cast<std::uint8_t>(severity));
    body.longText(text).shortText(kServerName).shortText("");
    atLeast72() ? body.u32(1) : body.u16(1);
    out_.u8(token).u16(static_cast<std::uint16_t>(body.bytes.size())).raw(body.bytes);
}

void TokenWriter::error(int number, int severity, std::string_view text) {
    notice(0xAA, number, severity, text);
}

void TokenWriter::message(int number, std::string_view text) {
    notice(0xAB, number, 0, text);
}

void TokenWriter::columns(std::span<const engine::ResultColumn> columns) {
    constexpr std::uint16_t kNullable = 0x01, kUpdatable = 0x08, kIdentity = 0x10;
    out_.u8(0x81).u16(static_cast<std::uint16_t>(columns.size()));
    for (const auto& column : columns) {
        atLeast72() ? out_.u32(0) : out_.u16(0);
        out_.u16(
            static_cast<std::uint16_t>((column.nullable ? kNullable : 0) | (column.identity ? kIdentity : kUpdatable)));
        typeInfo(column.type);
        out_.shortText(column.name);
    }
}

void TokenWriter::row(const engine::ResultRow& row, std::span<const engine::ResultColumn> columns) {
    out_.u8(0xD1);
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        value(row, i, columns[static_cast<std::size_t>(i)].type);
    }
}

void TokenWriter::connectionReset() {
    change(18, ByteWriter().u8(0), ByteWriter().u8(0));
}

void TokenWriter::done(DoneKind kind, std::uint16_t status, std::uint16_t command, std::uint64_t rows) {
    out_.u8(static_cast<std::uint8_t>(kind)).u16(status).u16(command);
    atLeast72() ? out_.u64(rows) : out_.u32(static_cast<std::uint32_t>(rows));
}

void TokenWriter::returnStatus(std::int32_t status) {
    out_.u8(0x79).u32(static_cast<std::uint32_t>(status));
}

void TokenWriter::returnValue(std::uint16_t ordinal, std::string_view name, std::span<const std::uint8_t> typed) {
    constexpr std::uint8_t kOutputParameter = 1;
    out_.u8(0xAC).u16(ordinal).shortText(name).u8(kOutputParameter);
    atLeast72() ? out_.u32(0) : out_.u16(0);
    out_.u16(0).raw(typed);
}

} // namespace peer

#pragma once

// The tokens of a response in the agreed protocol version.

#include "engine/run/Session.h"
#include "engine/values/DataType.h"
#include "peer/Bytes.h"

#include <span>
#include <string>
#include <string_view>

namespace peer {

/// Latin1_General_CI_AS as the protocol writes it.
inline constexpr std::uint8_t kCollation[5] = {0x09, 0x04, 0xD0, 0x00, 0x34};

namespace done {
inline constexpr std::uint16_t kFinal = 0x00, kMore = 0x01, kError = 0x02, kCount = 0x10, kAttention = 0x20;
} // namespace done

/// The token that tells the end of a statement, of a procedure, or of a statement inside a procedure.
enum class DoneKind : std::uint8_t { Statement = 0xFD, Procedure = 0xFE, InProcedure = 0xFF };

/// What the end of a statement names as its command.
namespace command {
inline constexpr std::uint16_t kNone = 0, kSelect = 0xC1, kInsert = 0xC3, kDelete = 0xC4, kUpdate = 0xC5,
                               kCreateTable = 0xC6, kRollback = 0xD2, kBegin = 0xD4, kCommit = 0xD5, kExecute = 0xE0,
                               kSet = 0xF9;
} // namespace command

/// The command of a kind of statement.
std::uint16_t commandOf(engine::Verb verb);

class TokenWriter {
public:
    explicit TokenWriter(std::uint32_t version) : version_(version) {}

    Bytes& bytes() { return out_.bytes; }
    std::size_t size() const { return out_.bytes.size(); }

    void loginAcknowledged();
    void databaseChanged(std::string_view now, std::string_view before);
    void packetSize(std::uint32_t now, std::uint32_t before);
    void collation();
    void transactionBegun(std::uint64_t descriptor);
    void transactionEnded(std::uint8_t how, std::uint64_t descriptor); ///< 9 committed, 10 rolled back
    void error(int number, int severity, std::string_view text);
    void message(int number, std::string_view text);
    void columns(std::span<const engine::ResultColumn> columns);
    void row(const engine::ResultRow& row, std::span<const engine::ResultColumn> columns);
    void connectionReset();
    /// DONE, DONEPROC and DONEINPROC.
    void done(DoneKind kind, std::uint16_t status, std::uint16_t command, std::uint64_t rows);
    void returnStatus(std::int32_t status);
    /// A parameter given by reference; `typed` is type and value, `ordinal` its place in the call.
    void returnValue(std::uint16_t ordinal, std::string_view name, std::span<const std::uint8_t> typed);

private:
    bool atLeast72() const { return version_ >= 0x72000000; }
    void notice(std::uint8_t token, int number, int severity, std::string_view text);
    void change(std::uint8_t type, const ByteWriter& now, const ByteWriter& before);
    void typeInfo(const engine::DataType& type);
    void value(const engine::ResultRow& row, int column, const engine::DataType& type);
    void textInfo(const engine::DataType& type);
    void textValue(bool null, std::string_view text, const engine::DataType& type);

    std::uint32_t version_;
    ByteWriter out_;
};

} // namespace peer

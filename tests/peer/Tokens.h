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
    void statementDone(std::uint16_t status, std::uint64_t rows);
    void procedureDone(std::uint16_t status);
    void returnStatus(std::int32_t status);
    /// An integer output value of a procedure, the handle of a prepared statement.
    void returnValue(std::string_view name, std::int32_t value);

private:
    bool atLeast72() const { return version_ >= 0x72000000; }
    void notice(std::uint8_t token, int number, int severity, std::string_view text);
    void change(std::uint8_t type, const ByteWriter& now, const ByteWriter& before);
    void typeInfo(const engine::DataType& type);
    void value(const engine::ResultRow& row, int column, const engine::DataType& type);
    void doneToken(std::uint8_t token, std::uint16_t status, std::uint64_t rows);

    std::uint32_t version_;
    ByteWriter out_;
};

} // namespace peer

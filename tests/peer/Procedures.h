#pragma once

#include "peer/Bytes.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace peer {

/// A remote procedure call as received, with its values as literals of the dialect.
struct ProcedureCall {
    std::string name; ///< for calls by a well-known number the name of that procedure
    struct Argument {
        std::string name;
        std::string literal;
        std::string text; ///< the value without quotes
    };
    std::vector<Argument> arguments;
};

/// Throws ProtocolError for types that aren't supported.
ProcedureCall readProcedureCall(ByteReader& in);

/// A call translated to a batch. Prepared texts are kept by their handles.
struct ProcedureText {
    std::string batch;
    std::optional<std::int32_t> handle; ///< to be returned to the client
    bool unknown = false;
};

ProcedureText procedureText(const ProcedureCall& call, std::map<std::int32_t, std::string>& prepared,
                            std::int32_t& last);

} // namespace peer

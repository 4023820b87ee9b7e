#pragma once

#include "peer/Bytes.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace peer {

/// A remote procedure call as it came, its values as literals of the dialect.
struct ProcedureCall {
    std::string name; ///< the well-known numbers are given their names
    struct Argument {
        std::string name;
        std::string literal;
        std::string text; ///< the bare value
    };
    std::vector<Argument> arguments;
};

/// Throws ProtocolError for a type that no client of ours sends.
ProcedureCall readProcedureCall(ByteReader& in);

/// What a call means as a batch. Prepared texts are kept by their handles.
struct ProcedureText {
    std::string batch;
    std::optional<std::int32_t> handle; ///< to be told to the client
    bool unknown = false;
};

ProcedureText procedureText(const ProcedureCall& call, std::map<std::int32_t, std::string>& prepared,
                            std::int32_t& last);

} // namespace peer

#pragma once

#include "peer/Parameters.h"
#include "peer/Tokens.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace peer {

/// A remote procedure call as received.
struct ProcedureCall {
    std::string name; ///< for calls by a well-known number the name of that procedure
    std::vector<Parameter> parameters;
};

/// The calls of one message. Throws engine::Error for parameters that aren't served, and 2812 for an unknown number.
std::vector<ProcedureCall> readProcedureCalls(ByteReader& in);

/// The prepared texts of a connection, by their handles.
class PreparedTexts {
public:
    struct Prepared {
        std::string text;
        std::string declarations; ///< `@a int, @b nvarchar(10)`
    };

    std::int32_t add(Prepared prepared);
    /// Throws engine::Error 8179 for a handle that isn't there.
    const Prepared& at(std::int32_t handle) const;
    void remove(std::int32_t handle);
    void clear() { texts_.clear(); }

private:
    std::map<std::int32_t, Prepared> texts_;
    std::int32_t last_ = 0;
};

/// A call translated to a batch.
struct ProcedureText {
    std::string batch;
    std::optional<std::int32_t> handle;      ///< to be returned to the client in the first parameter
    DoneKind inside = DoneKind::InProcedure; ///< Procedure: the batch is the call itself
};

/// Throws engine::Error for a call that isn't served.
ProcedureText procedureText(const ProcedureCall& call, PreparedTexts& prepared);

} // namespace peer

#pragma once

// The parameters of a remote procedure call, read to constants of the dialect.

#include "engine/errors/ErrorText.h"
#include "peer/Bytes.h"

#include <string>

namespace peer {

struct Parameter {
    std::string name;
    bool byReference = false;
    bool isDefault = false;
    std::string constant = "NULL"; ///< as a batch writes it
    std::string text;              ///< the value without quotes
    std::string type;              ///< of the value, as a script writes it
    Bytes raw;                     ///< type and value as they came

    /// The value with a type; without the one of its declaration it has its own.
    std::string typed(const std::string& declared = {}) const {
        return "CAST(" + constant + " AS " + (declared.empty() ? type : declared) + ")";
    }
};

/// Throws engine::Error 8009 for a type that isn't served and 8023 for a value that its type doesn't have; `ordinal`
/// counts from 1.
Parameter readParameter(ByteReader& in, int ordinal);

inline constexpr engine::errors::ErrorText<int, engine::errors::Text, engine::errors::Text> kUnknownType{
    8009, engine::Error::Reach::Statement,
    "The incoming tabular data stream (TDS) remote procedure call (RPC) protocol stream is incorrect. Parameter "
    "{ordinal} (\"{name}\"): Data type 0x{type} is unknown."};
inline constexpr engine::errors::ErrorText<int, engine::errors::Text, engine::errors::Text> kInvalidValue{
    8023, engine::Error::Reach::Statement,
    "The incoming tabular data stream (TDS) remote procedure call (RPC) protocol stream is incorrect. Parameter "
    "{ordinal} (\"{name}\"): The supplied value is not a valid instance of data type {type}. Check the source data for "
    "invalid values."};

} // namespace peer

#include "engine/Plan.h"

#include <sqlite3.h>

#include <algorithm>

namespace engine {

namespace {

using Source = bound::Parameter::Source;

Scalar writtenValue(const bound::Parameter& parameter, const Bindings& bindings) {
    if (parameter.source == Source::Constant || bindings.literals == nullptr) {
        return scalarOf(parameter.constant, parameter.negated);
    }
    const LiteralToken& token = bindings.literals->at(static_cast<std::size_t>(parameter.ordinal));
    return scalarOf({token.kind, token.text, parameter.ordinal}, parameter.negated);
}

} // namespace

Scalar valueOf(const bound::Parameter& parameter, const Bindings& bindings) {
    Scalar value = writtenValue(parameter, bindings);
    if (parameter.conversion.to.kind == DataType::Kind::Unknown) {
        return value;
    }
    ConversionRequest request = parameter.conversion;
    request.dayFirst = bindings.dayFirst;
    return convert(std::move(value), request);
}

void bindValue(sqlite::Statement& statement, int place, const Scalar& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        statement.bind(place, *integer);
    } else if (const auto* number = std::get_if<double>(&value)) {
        statement.bind(place, *number);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        statement.bind(place, std::string_view(*text));
    } else {
        statement.bindNull(place);
    }
}

void bindLiterals(sqlite::Statement& statement, const std::vector<bound::Parameter>& parameters,
                  const Bindings& bindings) {
    const auto places =
        std::min(parameters.size(), static_cast<std::size_t>(sqlite3_bind_parameter_count(statement.handle())));
    for (std::size_t i = 0; i < places; ++i) {
        if (parameters[i].source == Source::Literal || parameters[i].source == Source::Constant) {
            bindValue(statement, static_cast<int>(i) + 1, valueOf(parameters[i], bindings));
        }
    }
}

} // namespace engine

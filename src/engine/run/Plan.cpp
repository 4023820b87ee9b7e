#include "engine/run/Plan.h"

#include "engine/values/Ascii.h"

namespace engine {

namespace {

using Source = bound::Parameter::Source;

const Literal& writtenLiteral(const bound::Parameter& parameter, const Bindings& bindings) {
    return parameter.source == Source::Constant || bindings.literals == nullptr
               ? parameter.constant
               : bindings.literals->at(static_cast<std::size_t>(parameter.ordinal));
}

} // namespace

Scalar valueOf(const bound::Parameter& parameter, const Bindings& bindings) {
    const Literal& literal = writtenLiteral(parameter, bindings);
    Scalar value = scalarOf(literal, parameter.negated);
    if (auto* text = std::get_if<std::string>(&value); text != nullptr && parameter.trimmed) {
        text->resize(withoutTrailingBlanks(*text).size());
    }
    if (parameter.conversion.to.kind == DataType::Kind::Unknown) {
        return literal.kind == Literal::Kind::Decimal ? kept(std::move(value)) : value;
    }
    ConversionRequest request = parameter.conversion;
    request.dateOrder = bindings.dateOrder;
    if (request.from.kind == DataType::Kind::Decimal) {
        request.from = decimalOf(literal); // the plan may have been made for other digits
    }
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
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (parameters[i].source == Source::Literal || parameters[i].source == Source::Constant) {
            bindValue(statement, static_cast<int>(i) + 1, valueOf(parameters[i], bindings));
        }
    }
}

} // namespace engine

#include "engine/run/Procedures.h"

#include "engine/errors/RunErrors.h"
#include "engine/errors/TextErrors.h"
#include "engine/text/DatabaseOptions.h"
#include "engine/text/ServerOptions.h"
#include "engine/values/Collation.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

using Kind = DataType::Kind;
using Messages = std::vector<Message>;

const DataType kName{Kind::NVarChar, 128, 0, 0};
const DataType kInt{Kind::Int, 0, 0, 0};

/// The arguments of a call by their places, as constants.
class Values {
public:
    Values(const Execute& call, std::vector<std::string> parameters) : procedure_(call.procedure.last()) {
        values_.resize(parameters.size());
        std::size_t place = 0;
        for (const Execute::Argument& argument : call.arguments) {
            if (!argument.name.empty()) {
                const auto named = std::find_if(parameters.begin(), parameters.end(),
                                                [&](const std::string& one) { return sameText(one, argument.name); });
                if (named == parameters.end()) {
                    throw errors::unknownParameter(argument.name, procedure_);
                }
                place = static_cast<std::size_t>(named - parameters.begin());
            }
            if (place >= parameters.size()) {
                throw errors::tooManyArguments(procedure_);
            }
            values_[place++] = constant(*argument.value);
        }
    }

    bool given(std::size_t place) const { return values_[place].first.kind != Literal::Kind::Null; }

    /// Nothing where the argument was left out or is NULL.
    std::string text(std::size_t place) const {
        const Scalar value = converted(place, DataType{Kind::NVarChar, -1, 0, 0});
        return isNull(value) ? std::string() : std::get<std::string>(value);
    }

    long long integer(std::size_t place) const {
        try {
            return std::get<std::int64_t>(converted(place, kInt));
        } catch (const Error&) {
            throw errors::parameterConversion("nvarchar", "int");
        }
    }

private:
    using Constant = std::pair<Literal, bool>; ///< whether a minus stands before it

    static Constant constant(const Expression& expression) {
        const auto* unary = std::get_if<Unary>(&expression.node);
        const Expression& operand = unary == nullptr ? expression : *unary->operand;
        if (const auto* literal = std::get_if<Literal>(&operand.node)) {
            return {*literal, unary != nullptr && unary->op == Unary::Operator::Minus};
        }
        throw errors::syntaxNear("(", expression.position);
    }

    Scalar converted(std::size_t place, const DataType& type) const {
        const auto& [literal, negated] = values_[place];
        return convert(scalarOf(literal, negated), {typeOf(literal), type, {}});
    }

    std::string procedure_;
    std::vector<Constant> values_;
};

ResultColumn column(const char* name, const DataType& type) {
    ResultColumn made;
    made.name = name;
    made.type = type;
    return made;
}

std::optional<Listing> configure(ServerSession& session, const Execute& call, Messages& messages) {
    const Values values(call, {"@configname", "@configvalue"});
    const std::vector<Instance::Option> options = session.instance().options();
    const bool advanced = std::any_of(options.begin(), options.end(), [](const Instance::Option& option) {
        return option.name == kShowAdvancedOptions && option.running != 0;
    });
    const std::string wanted = values.given(0) ? serverOption(values.text(0), advanced).name : std::string();
    Listing rows;
    rows.columns = {column("name", {Kind::NVarChar, 35, 0, 0}), column("minimum", kInt), column("maximum", kInt),
                    column("config_value", kInt), column("run_value", kInt)};
    for (const Instance::Option& option : options) {
        const bool asked = wanted.empty() ? advanced || !option.advanced : option.name == wanted;
        if (!asked) {
            continue;
        }
        if (values.given(1)) {
            const long long value = values.integer(1);
            session.instance().configure(option.name, value);
            messages.push_back({15457, "Configuration option '" + option.name + "' changed from " +
                                           std::to_string(option.configured) + " to " + std::to_string(value) +
                                           ". Run the RECONFIGURE statement to install."});
            return {};
        }
        rows.rows.push_back({option.name, std::int64_t{option.minimum}, std::int64_t{option.maximum},
                             std::int64_t{option.configured}, std::int64_t{option.running}});
    }
    return rows;
}

bool isOn(const std::string& value) {
    for (const char* word : {"true", "on"}) {
        if (sameText(value, word)) {
            return true;
        }
    }
    for (const char* word : {"false", "off"}) {
        if (sameText(value, word)) {
            return false;
        }
    }
    throw errors::databaseOptionUsage();
}

std::optional<Listing> databaseOption(ServerSession& session, const Execute& call, Messages& /*messages*/) {
    if (session.instance().version() >= Instance::kFirstVersionWithoutDatabaseOptions) {
        throw errors::procedureMissing(call.procedure.text());
    }
    const Values values(call, {"@dbname", "@optname", "@optvalue"});
    Listing rows;
    if (!values.given(0)) {
        rows.columns = {column("Settable database options:", kName)};
        for (const DatabaseOption& option : databaseOptions()) {
            rows.rows.push_back({std::string(option.name)});
        }
        return rows;
    }
    const std::string database = values.text(0);
    if (values.given(2)) {
        session.instance().setDatabaseOption(database, values.text(1), isOn(values.text(2)));
        return {};
    }
    const auto options = session.instance().databaseOptions(database);
    if (!values.given(1)) {
        rows.columns = {column("The following options are set:", kName)};
        for (const auto& [name, value] : options) {
            if (value) {
                rows.rows.push_back({name});
            }
        }
        return rows;
    }
    const std::string wanted = engine::databaseOption(values.text(1)).name;
    rows.columns = {column("OptionName", kName), column("CurrentSetting", {Kind::Char, 3, 0, 0})};
    for (const auto& [name, value] : options) {
        if (name == wanted) {
            rows.rows.push_back({name, std::string(value ? "ON " : "OFF")});
        }
    }
    return rows;
}

struct Procedure {
    const char* name;
    std::optional<Listing> (*call)(ServerSession& session, const Execute& call, Messages& messages);
};

constexpr std::array kProcedures = std::to_array<Procedure>({
    {"sp_configure", configure},
    {"sp_dboption", databaseOption},
});

} // namespace

std::optional<Listing> callProcedure(ServerSession& session, const Execute& call, std::vector<Message>& messages) {
    const std::string schema = call.procedure.piece(1);
    const bool known = schema.empty() || sameText(schema, "sys") || sameText(schema, "dbo");
    for (const Procedure& procedure : kProcedures) {
        if (known && sameText(procedure.name, call.procedure.last())) {
            return procedure.call(session, call, messages);
        }
    }
    throw errors::procedureMissing(call.procedure.text());
}

} // namespace engine

#include "engine/run/Planner.h"

#include "engine/bind/BoundMakers.h"
#include "engine/errors/DefinitionErrors.h"
#include "engine/errors/Error.h"
#include "engine/run/SessionTables.h"
#include "engine/run/StatementKinds.h"
#include "engine/translate/SqlText.h"

#include <vector>

namespace engine {

namespace {

constexpr int kInvalidObject = 208;

class Planner {
public:
    Planner(ServerSession& session) : session_(session), finder_(session), binder_(finder_) {}

    template<class Node>
    PlanPtr plan(const Node& node) {
        const bound::Statement bound = binder_.bind(node);
        PlanPtr plan = std::visit([&](const auto& statement) { return prepare(statement); }, bound);
        return finish(std::move(plan));
    }

    PlanPtr planAlone(const Expression& expression, bool condition) {
        const bound::ExpressionPtr bound = binder_.bindAlone(expression);
        translate::Text text(condition ? "SELECT CASE WHEN " : "SELECT ");
        translate::write(text, *bound);
        text += condition ? " THEN 1 ELSE 0 END" : "";
        PlanPtr plan = made(text, Verb::Select);
        ResultColumn column;
        column.type = condition ? DataType{DataType::Kind::Int, 0, 0, 0} : bound->type;
        plan->columns.push_back(std::move(column));
        return finish(std::move(plan));
    }

    template<class Node>
    void check(const Node& node) {
        binder_.bind(node);
    }

private:
    sqlite::Statement prepared(const translate::Text& text) {
        Database& database = session_.current();
        try {
            return {database.connection(), text.sql()};
        } catch (const sqlite::Failure& failure) {
            database.raise(failure, nullptr, "");
        }
    }

    PlanPtr made(const translate::Text& text, Verb verb) {
        auto plan = std::make_shared<Plan>(verb, prepared(text));
        plan->parameters = text.parameters(binder_.parameters());
        return plan;
    }

    void addRows(Plan& plan, const translate::Text& text) {
        plan.rowsText = text.sql();
        plan.rowsParameters = text.parameters(binder_.parameters());
    }

    PlanPtr prepare(const bound::Select& select) {
        PlanPtr plan = made(translate::select(select), Verb::Select);
        plan->columns = select.columns;
        return plan;
    }

    std::int64_t most() const { return session_.settings.rowCount; }

    PlanPtr prepare(const bound::Insert& insert) {
        if (most() != 0 && !insert.select && insert.rows.size() > static_cast<std::size_t>(most())) {
            throw errors::notSupported("INSERT … VALUES of more rows than SET ROWCOUNT");
        }
        PlanPtr plan = made(translate::insert(insert), Verb::Insert);
        plan->table = insert.table.info;
        plan->identity = insert.identity;
        plan->givesIdentity = insert.identityPlace >= 0;
        if (insert.select) {
            const translate::Text text = translate::select(*insert.select);
            plan->source = prepared(text);
            plan->sourceParameters = text.parameters(binder_.parameters());
            plan->columns = insert.select->columns;
            for (std::size_t i = 0; i < plan->columns.size(); ++i) {
                plan->columns[i].type = insert.columns[i]->type;
            }
        }
        return plan;
    }

    PlanPtr prepare(const bound::Update& update) {
        PlanPtr plan = made(translate::update(update, most()), Verb::Update);
        plan->table = update.table.info;
        addRows(*plan, translate::rowsOf(update, most()));
        return plan;
    }

    PlanPtr prepare(const bound::Delete& remove) {
        PlanPtr plan = made(translate::remove(remove, most()), Verb::Delete);
        plan->table = remove.table.info;
        addRows(*plan, translate::rowsOf(remove, most()));
        return plan;
    }

    PlanPtr finish(PlanPtr plan) {
        plan->systemTables = finder_.systemTables();
        plan->reusable = !finder_.foreign();
        return plan;
    }

    ServerSession& session_;
    SessionTables finder_;
    Binder binder_;
};

} // namespace

PlanPtr makePlan(ServerSession& session, const Statement& statement) {
    return std::visit(
        [&](const auto& node) -> PlanPtr {
            if constexpr (kKindOf<decltype(node)>.runBy == StatementKind::RunBy::Plan) {
                return Planner(session).plan(node);
            } else {
                throw InternalError("a statement that has no plan");
            }
        },
        statement.node);
}

PlanPtr makeConditionPlan(ServerSession& session, const Expression& condition) {
    return Planner(session).planAlone(condition, true);
}

PlanPtr makeValuePlan(ServerSession& session, const Expression& value) {
    return Planner(session).planAlone(value, false);
}

void checkNames(ServerSession& session, const Statement& statement) {
    std::visit(
        [&](const auto& node) {
            if constexpr (kKindOf<decltype(node)>.names == StatementKind::Names::Checked) {
                try {
                    Planner(session).check(node);
                } catch (const Error& error) {
                    // The table may be made by the time the statement runs; its own errors come then.
                    if (error.number() != kInvalidObject && error.reach() != Error::Reach::Statement) {
                        throw;
                    }
                }
            }
        },
        statement.node);
}

void fixLiterals(Plan& plan, const Shape& shape) {
    std::vector<bool> free(shape.literals.size());
    for (const auto* parameters : {&plan.parameters, &plan.sourceParameters}) {
        for (const bound::Parameter& parameter : *parameters) {
            if (parameter.source != bound::Parameter::Source::Literal) {
                continue;
            }
            free[static_cast<std::size_t>(parameter.ordinal)] = !parameter.valueMatters;
            if (parameter.digitsMatter) {
                plan.fixedDigits.emplace_back(parameter.ordinal, decimalOf(parameter.constant));
            }
        }
    }
    for (std::size_t i = 0; i < free.size(); ++i) {
        if (!free[i]) {
            plan.fixed.emplace_back(static_cast<int>(i), shape.literals[i].text);
        }
    }
}

} // namespace engine

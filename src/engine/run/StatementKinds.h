#pragma once

// What a session knows of each kind of statement before one of that kind runs.

#include "engine/run/Session.h"
#include "engine/text/Tree.h"

#include <tuple>
#include <type_traits>
#include <variant>

namespace engine {

class ServerSession;

struct StatementKind {
    /// Whether it writes the current database and so joins the open transaction.
    bool writes;

    /// What happens to its names before the first statement of its batch runs.
    enum class Names {
        Unchecked,
        Checked,
        OfItsStatements, ///< those of the statements inside
        EndCheck         ///< what follows may need what it makes or changes: nothing more of the batch is checked
    } names;

    enum class RunBy {
        Plan,       ///< bound, translated and prepared by the Planner; a batch of one such statement keeps its plan
        Definition, ///< `define` below; gives no result
        Procedure,  ///< `callProcedure` of Procedures.h
        Message,    ///< its text goes to the client
        Batch       ///< decides which statements come next: `enter` of BatchRun
    } runBy;

    Verb verb = Verb::Other; ///< what its end is told as
};

template<class Node>
struct KindOf {
    StatementKind kind;
};

namespace kinds {

using enum StatementKind::Names;
using enum StatementKind::RunBy;

constexpr bool kReads = false;
constexpr bool kWrites = true;

/// In the order of Statement::node.
inline constexpr std::tuple kAll{
    KindOf<Select>{{kReads, Checked, Plan, Verb::Select}},
    KindOf<Insert>{{kWrites, Checked, Plan, Verb::Insert}},
    KindOf<Update>{{kWrites, Checked, Plan, Verb::Update}},
    KindOf<Delete>{{kWrites, Checked, Plan, Verb::Delete}},
    KindOf<CreateTable>{{kWrites, EndCheck, Definition, Verb::CreateTable}},
    KindOf<AlterTable>{{kWrites, Unchecked, Definition}},
    KindOf<CreateIndex>{{kWrites, Unchecked, Definition}},
    KindOf<Drop>{{kWrites, EndCheck, Definition}},
    KindOf<Truncate>{{kWrites, Unchecked, Definition}},
    KindOf<CreateDatabase>{{kReads, Unchecked, Definition}},
    KindOf<AlterDatabase>{{kReads, Unchecked, Definition}},
    KindOf<Use>{{kReads, EndCheck, Definition}},
    KindOf<SetOption>{{kReads, EndCheck, Definition, Verb::SetOption}},
    KindOf<Execute>{{kReads, EndCheck, Procedure, Verb::Execute}},
    KindOf<Reconfigure>{{kReads, Unchecked, Definition}},
    KindOf<Transaction>{{kReads, Unchecked, Definition}},
    KindOf<If>{{kReads, Unchecked, Batch}},
    KindOf<Block>{{kReads, OfItsStatements, Batch}},
    KindOf<Print>{{kReads, Unchecked, Message}},
};

template<class Variant>
struct RowsOf;
template<class... Nodes>
struct RowsOf<std::variant<Nodes...>> {
    using Type = std::tuple<KindOf<Nodes>...>;
};

static_assert(std::is_same_v<decltype(kAll), const RowsOf<decltype(Statement::node)>::Type>,
              "each kind of statement has one row, in the order of Statement::node");

} // namespace kinds

/// `Node` is an alternative of Statement::node.
template<class Node>
inline constexpr StatementKind kKindOf = std::get<KindOf<std::remove_cvref_t<Node>>>(kinds::kAll).kind;

inline StatementKind kindOf(const Statement& statement) {
    return std::visit([](const auto& node) { return kKindOf<decltype(node)>; }, statement.node);
}

// Each in the source of its matter, Define….cpp.
void define(ServerSession& session, const CreateTable& create);    // 2714, 2705, 1779, 1911, 2744
void define(ServerSession& session, const AlterTable& alter);      // 4902, 2705, 4901
void define(ServerSession& session, const CreateIndex& create);    // 1088, 1911, 1913, 1505
void define(ServerSession& session, const Drop& drop);             // 3701, 1222
void define(ServerSession& session, const Truncate& truncate);     // 4701, 1222
void define(ServerSession& session, const CreateDatabase& create); // 1801, 5133
void define(ServerSession& session, const AlterDatabase& alter);   // 5011
void define(ServerSession& session, const Use& use);               // 911
void define(ServerSession& session, const SetOption& option);      // 1088, 8107, 2743
void define(ServerSession& session, const Reconfigure& reconfigure);
void define(ServerSession& session, const Transaction& transaction); // 3902, 3903, 6401

} // namespace engine

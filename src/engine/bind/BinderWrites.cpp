#include "engine/bind/Binder.h"
#include "engine/bind/BoundMakers.h"
#include "engine/errors/BindErrors.h"
#include "engine/text/Parser.h"
#include "engine/values/Collation.h"

#include <algorithm>

namespace engine {

namespace {

/// Rows that one VALUES may list.
constexpr std::size_t kMostRows = 1000;

} // namespace

bound::Table Binder::target(const Name& name) {
    const TableFinder::Found found = finder_.find(name);
    if (found.system) {
        throw errors::systemTable(found.info->name);
    }
    return {tables_++, found.schema, found.info};
}

void Binder::expose(Scope& scope, const bound::Table& target) {
    Visible visible;
    visible.qualifier = target.info->name;
    visible.number = target.number;
    visible.table = target.info;
    scope.tables.push_back(std::move(visible));
}

bound::ExpressionPtr Binder::bindDefault(const ColumnInfo& column) {
    if (!column.defaultText) {
        auto null = bound::constant("NULL", DataType{});
        null->nullable = true;
        return null;
    }
    mode_ = Mode::Default;
    auto value = expression(*parseExpression(*column.defaultText));
    mode_ = Mode::Statement;
    return convertTo(std::move(value), column.type, Purpose::Assignment);
}

bound::ExpressionPtr Binder::assigned(const Expression* value, const ColumnInfo& column) {
    if (value == nullptr) {
        return bindDefault(column);
    }
    return convertWritten(expression(*value), column.type, Purpose::Assignment);
}

std::vector<const ColumnInfo*> Binder::insertColumns(const Insert& insert, const bound::Table& table,
                                                     bool& explicitIdentity) {
    const TableInfo& info = *table.info;
    const bool takesIdentity = finder_.takesIdentity(info);
    std::vector<const ColumnInfo*> columns;
    for (const std::string& name : insert.columns) {
        const int place = info.find(name);
        if (place < 0) {
            throw errors::invalidColumn(name);
        }
        const ColumnInfo* column = &info.columns[static_cast<std::size_t>(place)];
        if (std::find(columns.begin(), columns.end(), column) != columns.end()) {
            throw errors::columnTwice(column->name);
        }
        columns.push_back(column);
    }
    const bool nothingGiven = insert.columns.empty() && insert.rows.empty() && !insert.select;
    if (insert.columns.empty() && !nothingGiven) {
        for (const ColumnInfo& column : info.columns) {
            if (!column.identity || takesIdentity) {
                columns.push_back(&column);
            }
        }
    }
    explicitIdentity = std::any_of(columns.begin(), columns.end(), [](const auto* column) { return column->identity; });
    if (explicitIdentity && !takesIdentity) {
        throw errors::explicitIdentity(info.name);
    }
    if (explicitIdentity && insert.columns.empty()) {
        throw errors::identityWithoutList(info.name);
    }
    if (!explicitIdentity && takesIdentity && info.identity() != nullptr) {
        throw errors::identityValueMissing(info.name);
    }
    return columns;
}

/// Adds the values of the columns that the statement leaves out: the next identity and the defaults.
void Binder::completeRow(const bound::Insert& insert, std::size_t given, std::vector<bound::ExpressionPtr>& row) {
    for (std::size_t i = given; i < insert.columns.size(); ++i) {
        const ColumnInfo& column = *insert.columns[i];
        if (!column.identity) {
            row.push_back(bindDefault(column));
            continue;
        }
        bound::Parameter identity;
        identity.source = bound::Parameter::Source::Identity;
        row.push_back(use(std::move(identity), column.type));
    }
}

bound::Statement Binder::bind(const Insert& insert) {
    bound::Insert result;
    Scope scope; // without tables: VALUES can't name columns
    scope_ = &scope;
    result.table = target(insert.table);
    const TableInfo& info = *result.table.info;
    bool explicitIdentity = false;
    result.columns = insertColumns(insert, result.table, explicitIdentity);
    result.identity = info.identity();
    const std::size_t given = result.columns.size();
    for (std::size_t i = 0; i < given; ++i) {
        if (result.columns[i]->identity) {
            result.identityPlace = static_cast<int>(i);
        }
    }
    for (const ColumnInfo& column : info.columns) {
        const bool omitted = std::find(result.columns.begin(), result.columns.end(), &column) == result.columns.end();
        if (omitted && (column.identity || column.defaultText)) {
            result.columns.push_back(&column);
        }
    }
    const bool named = !insert.columns.empty();
    if (insert.select) {
        result.select = std::make_unique<bound::Select>(select(*insert.select, nullptr));
        scope_ = &scope;
        const std::size_t count = result.select->columns.size();
        if (count != given) {
            throw !named    ? errors::columnCountMismatch()
            : count > given ? errors::fewerColumnsThanSelected()
                            : errors::moreColumnsThanSelected();
        }
        std::vector<bound::ExpressionPtr> row;
        for (std::size_t i = 0; i < given; ++i) {
            for (bound::Core& core : result.select->cores) {
                core.items[i] = convertTo(std::move(core.items[i]), result.columns[i]->type, Purpose::Assignment);
            }
            bound::Parameter selected;
            selected.source = bound::Parameter::Source::Row;
            selected.ordinal = static_cast<int>(i);
            row.push_back(use(std::move(selected), result.columns[i]->type));
        }
        completeRow(result, given, row);
        result.rows.push_back(std::move(row));
        return result;
    }
    if (insert.rows.size() > kMostRows) {
        throw errors::tooManyRows();
    }
    std::vector<DataType> common(given); // the values of several rows meet in one type before the column's
    for (const auto& values : insert.rows) {
        if (values.size() != insert.rows.front().size()) {
            throw errors::valuesCountMismatch();
        }
        if (values.size() != given) {
            throw !named            ? errors::columnCountMismatch()
            : values.size() > given ? errors::fewerColumnsThanValues()
                                    : errors::moreColumnsThanValues();
        }
        std::vector<bound::ExpressionPtr>& row = result.rows.emplace_back();
        for (std::size_t i = 0; i < given; ++i) {
            row.push_back(values[i] ? expression(*values[i]) : bindDefault(*result.columns[i]));
            common[i] = values[i] ? commonType(common[i], row.back()->type) : common[i];
        }
    }
    for (std::size_t place = 0; place < insert.rows.size(); ++place) {
        std::vector<bound::ExpressionPtr>& row = result.rows[place];
        for (std::size_t i = 0; i < given; ++i) {
            if (insert.rows[place][i]) {
                const bool textElsewhere = row[i]->type.isText() && !common[i].isText();
                row[i] = textElsewhere ? convertTo(std::move(row[i]), comparable(common[i]), Purpose::Cast)
                                       : std::move(row[i]);
                row[i] = convertWritten(std::move(row[i]), result.columns[i]->type, Purpose::Assignment);
            }
        }
        completeRow(result, given, row);
    }
    if (insert.rows.empty()) {
        std::vector<bound::ExpressionPtr> row;
        completeRow(result, 0, row);
        result.rows.push_back(std::move(row));
    }
    return result;
}

bound::Statement Binder::bind(const Update& update) {
    bound::Update result;
    Scope scope;
    scope_ = &scope;
    Name table = update.table;
    for (const TableSourcePtr& source : update.from) {
        result.from.push_back(this->source(*source, scope, false));
    }
    // The target is looked for among the sources by alias, then by its own name.
    const auto standsFor = [&](const auto& isNamed) {
        for (const Visible& visible : scope.tables) {
            if (visible.table == nullptr || !isNamed(visible)) {
                continue;
            }
            if (result.targetInFrom >= 0) {
                throw errors::ambiguousTable(update.table.last());
            }
            result.targetInFrom = visible.number;
            table.pieces.back() = visible.table->name;
        }
    };
    standsFor([&](const Visible& visible) { return sameText(visible.qualifier, update.table.last()); });
    if (result.targetInFrom < 0) {
        standsFor([&](const Visible& visible) { return sameText(visible.table->name, update.table.last()); });
    }
    result.table = target(table);
    if (result.targetInFrom < 0) {
        expose(scope, result.table);
    }
    for (const Update::Assignment& assignment : update.assignments) {
        const int place = result.table.info->find(assignment.column.last());
        if (place < 0) {
            throw errors::invalidColumn(assignment.column.last());
        }
        const ColumnInfo& column = result.table.info->columns[static_cast<std::size_t>(place)];
        if (column.identity) {
            throw errors::updateIdentity(column.name);
        }
        for (const auto& earlier : result.assignments) {
            if (earlier.column == &column) {
                throw errors::columnTwice(column.name);
            }
        }
        result.assignments.push_back({&column, assigned(assignment.value.get(), column)});
    }
    if (update.where) {
        result.where = expression(*update.where);
    }
    result.selects = selects_;
    return result;
}

bound::Statement Binder::bind(const Delete& remove) {
    bound::Delete result;
    Scope scope;
    scope_ = &scope;
    result.table = target(remove.table);
    expose(scope, result.table);
    if (remove.where) {
        result.where = expression(*remove.where);
    }
    result.selects = selects_;
    return result;
}

} // namespace engine

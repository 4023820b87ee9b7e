#include "engine/differential/Answers.h"

#include "engine/errors/Error.h"
#include "engine/values/Collation.h"

#include <algorithm>

namespace engine::differential {

namespace {

bool isOneOf(int number, std::initializer_list<int> numbers) {
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

std::string line(const Answer::Row& row) {
    std::string all;
    for (const auto& value : row) {
        all += (all.empty() ? "" : " | ") + (value ? "<" + *value + ">" : "NULL");
    }
    return all + "\n";
}

} // namespace

bool Answer::refusedInARow() const {
    return isOneOf(error, {220, 232, 235, 241, 242,  244,  245,  248,  295,  512,
                           517, 535, 536, 537, 3606, 8114, 8115, 8134, 8152, 40517});
}

bool Answer::refusedAsDouble() const {
    return isOneOf(error, {1505, 2601, 2627});
}

bool Answer::broken() const {
    return isOneOf(error, {823, 8630});
}

std::string Answer::told() const {
    std::string all;
    for (const ResultColumn& column : columns) {
        all += column.name + ' ' + toText(column.type) + (column.nullable ? " null" : "") +
               (column.key ? " key " : " ") + column.baseColumn + "; ";
    }
    all += "(" + std::to_string(affected) + ")\n";
    for (const Row& row : rows) {
        all += line(row);
    }
    return refused() ? all + "!" + std::to_string(error) + " " + errorText : all;
}

std::string Answer::rowsTold(bool inOrder, bool exactly) const {
    std::vector<std::string> lines;
    for (Row row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (!exactly && row[i] && columns[i].type.isText()) {
                row[i] = collationKey(*row[i]);
            }
        }
        lines.push_back(line(row));
    }
    if (!inOrder) {
        std::sort(lines.begin(), lines.end());
    }
    std::string all;
    for (const std::string& one : lines) {
        all += one;
    }
    return all;
}

Answer ask(Session& session, std::string_view statement) {
    Answer answer;
    try {
        const std::unique_ptr<Batch> batch = session.execute(statement);
        while (batch->nextResult()) {
            answer.affected = batch->affected();
            if (!batch->hasRows()) {
                continue;
            }
            answer.columns = batch->columns();
            while (const ResultRow* row = batch->nextRow()) {
                Answer::Row& values = answer.rows.emplace_back();
                for (int i = 0; i < static_cast<int>(answer.columns.size()); ++i) {
                    values.push_back(row->isNull(i) ? std::nullopt : std::optional<std::string>(row->text(i)));
                }
            }
        }
    } catch (const Error& error) {
        answer.error = error.number();
        answer.errorText = error.what();
    }
    return answer;
}

} // namespace engine::differential

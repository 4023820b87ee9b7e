#include "ado/Recordset.h"

#include "ado/Names.h"
#include "ado/RecordsetState.h"
#include "ado/Source.h"
#include "ado/WhileWaiting.h"

#include <algorithm>
#include <utility>

namespace ado {

const FieldDescription& Field::description() const {
    recordset_->state_->demandOpen();
    return recordset_->state_->fields[static_cast<std::size_t>(index_)];
}

Value Field::Value() const {
    return recordset_->state_->value(index_);
}

Field& Field::operator=(const ado::Value& value) {
    recordset_->state_->assign(index_, value);
    return *this;
}

// Assigns the other field's value. An assignment to itself writes the value, too.
Field& Field::operator=(const Field& other) { // NOLINT(bugprone-unhandled-self-assignment)
    return *this = other.Value();
}

Recordset::Recordset() : state_(std::make_unique<State>()) {}
Recordset::~Recordset() = default;

void Recordset::Open(const std::string& source, Connection& connection, CursorType cursor, LockType lock, int options) {
    if (IsOpen()) {
        throw Error(kObjectOpen);
    }
    auto driverConnection = connection.driverConnection();
    state_->source = source;
    state_->cursorType = cursor;
    state_->lock = lock;
    state_->statement = statementOf(source, options);
    state_->openOn(std::move(driverConnection));
    if (IsOpen()) {
        state_->notify();
    }
}

void Recordset::Open(const std::string& source, const std::string& connectionString, CursorType cursor, LockType lock,
                     int options) {
    if (IsOpen()) {
        throw Error(kObjectOpen);
    }
    auto connection = std::make_unique<Connection>();
    connection->Open(connectionString);
    Open(source, *connection, cursor, lock, options);
    if (IsOpen()) {
        state_->ownConnection = std::move(connection);
    }
}

void Recordset::Close() {
    state_->demandOpen();
    if (state_->edit != State::Edit::None) {
        throw Error(kNotAllowedHere);
    }
    refuseWhileWaiting();
    state_->close();
}

bool Recordset::IsOpen() const {
    return state_->open;
}
const std::string& Recordset::Source() const {
    return state_->source;
}

bool Recordset::EOF() const {
    state_->demandOpen();
    return state_->edit != State::Edit::Adding && state_->cursor.eof();
}

bool Recordset::BOF() const {
    state_->demandOpen();
    return state_->edit != State::Edit::Adding && state_->cursor.bof();
}

void Recordset::MoveFirst() {
    state_->move([](RowCursor& cursor) { cursor.first(); });
}

void Recordset::MoveLast() {
    state_->demandBackwards();
    state_->move([](RowCursor& cursor) { cursor.last(); });
}

void Recordset::MoveNext() {
    Move(1);
}
void Recordset::MovePrevious() {
    Move(-1);
}

void Recordset::Move(long rows) {
    if (rows < 0) {
        state_->demandBackwards();
    }
    state_->move([rows](RowCursor& cursor) { cursor.move(rows); });
}

void Recordset::MoveFromFirst(long rows) {
    state_->demandBackwards();
    state_->move([rows](RowCursor& cursor) { cursor.moveFromFirst(rows); });
}

int Recordset::FieldCount() const {
    return static_cast<int>(state_->fields.size());
}

Field Recordset::operator[](std::string_view name) {
    state_->demandOpen();
    const auto& fields = state_->fields;
    const auto found =
        std::ranges::find_if(fields, [&](const FieldDescription& field) { return sameName(field.name, name); });
    if (found == fields.end()) {
        throw Error(kItemNotFound).in(std::string(name));
    }
    return {*this, static_cast<int>(found - fields.begin())};
}

Field Recordset::operator[](int index) {
    state_->demandOpen();
    if (index < 0 || index >= FieldCount()) {
        throw Error(kItemNotFound);
    }
    return {*this, index};
}

void Recordset::AddNew() {
    state_->addNew();
}
void Recordset::Update() {
    state_->update();
}
void Recordset::CancelUpdate() {
    state_->cancelUpdate();
}
void Recordset::Requery() {
    state_->requery();
}

const std::string& Recordset::Filter() const {
    return state_->filter;
}

void Recordset::setFilter(const std::string& filter) {
    state_->demandOpen();
    std::optional<FilterExpression> expression;
    if (!filter.empty()) {
        expression.emplace(filter, state_->fields);
    }
    state_->update();
    state_->filter = filter;
    state_->filterExpression = std::move(expression);
    state_->applyFilter();
    state_->notify();
}

long Recordset::AbsolutePosition() const {
    constexpr long kUnknown = -1, kBof = -2, kEof = -3;
    state_->demandOpen();
    const RowCursor& cursor = state_->cursor;
    if (state_->edit == State::Edit::Adding || cursor.count() == 0) {
        return kUnknown;
    }
    if (cursor.bof()) {
        return kBof;
    }
    if (cursor.eof()) {
        return kEof;
    }
    return RecordCount() < 0 ? kUnknown : cursor.position() + 1;
}

void Recordset::setAbsolutePosition(long position) {
    state_->demandBackwards();
    const long count = state_->cursor.count();
    if (count > 0 && (position < 1 || position > count)) {
        throw Error(kWrongArguments);
    }
    state_->move([position](RowCursor& cursor) { cursor.moveFromFirst(position - 1); });
}

long Recordset::RecordCount() const {
    state_->demandOpen();
    const bool counted = state_->cursorType == CursorType::Keyset || state_->cursorType == CursorType::Static;
    return counted ? state_->cursor.count() : -1;
}

Value Recordset::ValueAt(long position, int column) const {
    state_->demandOpen();
    if (column < 0 || column >= FieldCount()) {
        throw Error(kItemNotFound);
    }
    return state_->rows.value(state_->cursor.rowAt(position - 1), column);
}

void Recordset::onChange(std::function<void()> listener) {
    if (listener) {
        state_->listeners.push_back(std::move(listener));
    }
}

} // namespace ado

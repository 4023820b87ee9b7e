#include "controls/DataControl.h"

#include "ado/Error.h"

namespace controls {

namespace {

ado::Error objectNotSet() {
    constexpr int kNumber = 91;
    return {kNumber, "Object variable or With block variable not set"};
}

} // namespace

DataControl::DataControl(QWidget* parent) : QWidget(parent) {
    hide();
}

DataControl::~DataControl() = default;

void DataControl::load(const std::string& connection, const std::string& source) {
    ConnectionString = connection;
    RecordSource = source;
    Refresh();
}

void DataControl::Refresh() {
    recordset_.reset();
    auto fresh = std::make_unique<ado::Recordset>();
    try {
        fresh->Open(RecordSource, ConnectionString, ado::CursorType::Static, ado::LockType::Optimistic);
        if (!fresh->IsOpen()) {
            throw ado::Error(ado::kObjectClosed);
        }
    } catch (...) {
        emit refreshed();
        throw;
    }
    recordset_ = std::move(fresh);
    filter_.clear();
    count_ = recordset_->RecordCount();
    recordset_->onChange([this] { follow(); });
    emit refreshed();
}

ado::Recordset& DataControl::Recordset() {
    if (recordset_ == nullptr) {
        throw objectNotSet();
    }
    return *recordset_;
}

void DataControl::follow() {
    if (recordset_ == nullptr) {
        return;
    }
    if (!recordset_->IsOpen() || recordset_->Filter() != filter_ || recordset_->RecordCount() != count_) {
        filter_ = recordset_->IsOpen() ? recordset_->Filter() : std::string();
        count_ = recordset_->IsOpen() ? recordset_->RecordCount() : 0;
        emit rowsChanged();
    }
    emit moved();
}

void DataControl::byUser(const std::function<void()>& act) {
    try {
        act();
    } catch (const ado::Error& error) {
        emit Error(error.number(), QString::fromStdString(error.description()));
    }
}

} // namespace controls

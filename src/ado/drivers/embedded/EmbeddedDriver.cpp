#include "ado/drivers/embedded/EmbeddedDriver.h"

#include "ado/Drivers.h"
#include "ado/PresentEvent.h"
#include "ado/ServerErrors.h"
#include "ado/WhileWaiting.h"
#include "engine/run/InternalErrors.h"
#include "engine/run/Session.h"

#include <QLoggingCategory>

#include <array>
#include <utility>

namespace ado {

namespace {

// On by default, since only bugs are logged here.
Q_LOGGING_CATEGORY(engineLog, "vabo.engine", QtWarningMsg)

using SessionPtr = std::shared_ptr<engine::Session>;

/// Converts the engine's errors into the data layer's.
template<typename Work>
decltype(auto) translated(Work&& work) {
    refuseWhileWaiting();
    try {
        return work();
    } catch (const engine::Error& error) {
        throw serverError(error.number(), error.what());
    } catch (const std::runtime_error& error) {
        throw serverError(0, error.what());
    }
}

FieldType fieldType(const engine::DataType& type) {
    using Kind = engine::DataType::Kind;
    struct Pair {
        Kind kind;
        FieldType field;
    };
    static constexpr std::array kPairs = std::to_array<Pair>({
        {Kind::Unknown, FieldType::Integer},
        {Kind::Bit, FieldType::Boolean},
        {Kind::TinyInt, FieldType::Byte},
        {Kind::SmallInt, FieldType::SmallInt},
        {Kind::Int, FieldType::Integer},
        {Kind::BigInt, FieldType::BigInt},
        {Kind::Decimal, FieldType::Decimal},
        {Kind::Real, FieldType::Single},
        {Kind::Float, FieldType::Double},
        {Kind::DateTime, FieldType::DateTime},
        {Kind::Char, FieldType::Char},
        {Kind::VarChar, FieldType::Char},
        {Kind::NChar, FieldType::WChar},
        {Kind::NVarChar, FieldType::WChar},
        {Kind::VarBinary, FieldType::Binary},
    });
    // The engine stores money and smallmoney as decimals of these sizes.
    if (type.kind == Kind::Decimal && type.scale == 4 && (type.precision == 19 || type.precision == 10)) {
        return FieldType::Currency;
    }
    for (const Pair& pair : kPairs) {
        if (pair.kind == type.kind) {
            return pair.field;
        }
    }
    return FieldType::WChar;
}

FieldDescription describe(const engine::ResultColumn& column) {
    FieldDescription field;
    field.name = column.name;
    field.type = fieldType(column.type);
    field.length = column.type.length;
    field.precision = column.type.precision;
    field.scale = column.type.scale;
    field.nullable = column.nullable;
    field.identity = column.identity;
    field.key = column.key;
    field.baseTable = column.baseTable;
    field.baseColumn = column.baseColumn;
    return field;
}

class EmbeddedResult : public DriverResult {
public:
    EmbeddedResult(SessionPtr session, std::unique_ptr<engine::Batch> batch)
        : session_(std::move(session)), batch_(std::move(batch)) {}

    bool nextResult() override {
        fields_.clear();
        if (!translated([&] { return batch_->nextResult(); })) {
            return false;
        }
        for (const engine::ResultColumn& column : batch_->columns()) {
            fields_.push_back(describe(column));
        }
        return true;
    }
    bool hasRows() const override { return batch_->hasRows(); }
    const std::vector<FieldDescription>& fields() const override { return fields_; }
    std::int64_t affected() const override { return batch_->affected(); }

    bool nextRow() override {
        row_ = translated([&] { return batch_->nextRow(); });
        return row_ != nullptr;
    }
    bool isNull(int field) const override { return row_->isNull(field); }
    std::int64_t integer(int field) const override { return row_->integer(field); }
    double real(int field) const override { return row_->real(field); }
    std::string_view text(int field) const override { return row_->text(field); }

private:
    SessionPtr session_;
    std::unique_ptr<engine::Batch> batch_; // declared after the session, so that it is destroyed first
    const engine::ResultRow* row_ = nullptr;
    std::vector<FieldDescription> fields_;
};

std::unique_ptr<DriverResult> runOn(const SessionPtr& session, std::string_view text) {
    return std::make_unique<EmbeddedResult>(session, translated([&] { return session->execute(text); }));
}

/// The session's own writes aren't refused by its holds, so a text is run as without a hold.
class EmbeddedHold : public DriverHold {
public:
    EmbeddedHold(SessionPtr session, std::unique_ptr<engine::RowHold> rows, std::string_view select)
        : session_(std::move(session)), rows_(std::move(rows)), select_(select) {}

    std::unique_ptr<DriverResult> rows() override {
        auto result = runOn(session_, select_);
        result->nextResult();
        return result;
    }
    std::unique_ptr<DriverResult> run(std::string_view text) override { return runOn(session_, text); }

private:
    SessionPtr session_;
    std::unique_ptr<engine::RowHold> rows_;
    std::string select_;
};

class EmbeddedConnection : public DriverConnection {
public:
    explicit EmbeddedConnection(SessionPtr session) : session_(std::move(session)) {}

    std::unique_ptr<DriverResult> run(std::string_view text) override { return runOn(session_, text); }

    std::unique_ptr<DriverHold> hold(std::string_view select) override {
        return std::make_unique<EmbeddedHold>(session_, translated([&] { return session_->hold(select); }), select);
    }

    std::int64_t lastIdentity() override { return session_->lastIdentity(); }

    std::vector<std::string> primaryKey(const std::string& table) override {
        std::vector<std::string> columns;
        const auto result = run("SELECT * FROM [" + table + "] WHERE 1 = 0");
        if (!result->nextResult()) {
            return columns;
        }
        for (const FieldDescription& field : result->fields()) {
            if (field.key) {
                columns.push_back(field.baseColumn);
            }
        }
        return columns;
    }

    bool alive() const override { return true; }

private:
    SessionPtr session_;
};

} // namespace

EmbeddedDriver::EmbeddedDriver() : databases_(std::make_shared<engine::KeptDatabases>()) {
    engine::onInternalError([](const char* what) { qCWarning(engineLog) << "internal error:" << what; });
}

std::shared_ptr<engine::Instance> EmbeddedDriver::instance(const std::filesystem::path& folder) {
    std::weak_ptr<engine::Instance>& known = instances_[folder];
    if (auto living = known.lock(); living && living->isThere()) {
        return living;
    }
    auto opened = engine::Instance::open(folder, {[](std::string_view path) { return mapServerPath(path); }});
    known = opened;
    return opened;
}

void EmbeddedDriver::keepInThisEvent(std::shared_ptr<engine::Instance> instance) {
    const auto close = [this] {
        databases_->stop();
        kept_.clear();
    };
    if (!kept_.empty() || atEndOfEvent(close)) {
        kept_.insert(std::move(instance));
        databases_->start();
    }
}

std::unique_ptr<DriverConnection> EmbeddedDriver::connect(const ConnectionString& text) {
    return translated([&] {
        const engine::Login login{text.user(), text.password(), text.database()};
        const std::shared_ptr<engine::Instance> server = instance(instanceFolder(text.server()));
        SessionPtr session = engine::Session::open(server, login, databases_);
        keepInThisEvent(server);
        return std::make_unique<EmbeddedConnection>(std::move(session));
    });
}

} // namespace ado

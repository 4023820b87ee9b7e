#pragma once

#include "engine/errors/Error.h"
#include "engine/values/ResultColumn.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

class Instance;
class KeptDatabases;

/// What a client may read while it walks the results of a batch.
struct Message {
    int number = 0;
    std::string text;
};

/// What a client is told of the statement that gave a result.
enum class Verb { Other, Select, Insert, Update, Delete, CreateTable, SetOption, Execute, Begin, Commit, Rollback };

/// The present row of a result.
class ResultRow {
public:
    virtual ~ResultRow() = default;

    virtual bool isNull(int column) const = 0;
    /// Bits are 0 and 1.
    virtual std::int64_t integer(int column) const = 0;
    virtual double real(int column) const = 0;
    /// UTF-8; valid until the next step. Dates read `YYYY-MM-DD hh:mm:ss.mmm`, decimals carry all digits of their
    /// scale and a point. Of a null it has no data (`data()` is null).
    virtual std::string_view text(int column) const = 0;
};

/// The running of one batch, result by result. Owned by the caller; its session must outlive it, and a session runs
/// one batch at a time: starting another ends this one.
class Batch {
public:
    virtual ~Batch() = default;

    /// Runs on to the next statement. False at the end of the batch. Throws engine::Error when the statement failed;
    /// the next call goes on behind it where the error's reach is the statement.
    virtual bool nextResult() = 0;
    /// Of the present result, or of the statement that failed.
    virtual Verb verb() const = 0;
    /// Whether the present result has columns.
    virtual bool hasRows() const = 0;
    virtual const std::vector<ResultColumn>& columns() const = 0;
    /// Rows written by the present result, -1 where it wrote none.
    virtual std::int64_t affected() const = 0;
    virtual const std::vector<Message>& messages() const = 0;

    /// Steps to the next row of the present result: the row, valid until this batch or its session does something else,
    /// or nullptr behind the last one.
    virtual const ResultRow* nextRow() = 0;
};

/// Rows held for their holder alone; the hold ends with this object or with the process.
class RowHold {
public:
    virtual ~RowHold() = default;
    virtual int rows() const = 0;
};

struct Login {
    std::string user; ///< empty: the owner of the process, trusted
    std::string password;
    std::string database; ///< empty: master
};

/// A connection to an instance. One thread at a time.
class Session {
public:
    /// Throws Error 18456 for a login that the instance does not know, 4060 for a missing database. `kept`: where the
    /// session finds databases that are open already, and leaves its own; nullptr for none.
    static std::unique_ptr<Session> open(std::shared_ptr<Instance> instance, const Login& login,
                                         std::shared_ptr<KeptDatabases> kept = nullptr);
    virtual ~Session() = default;

    /// Parses the whole text (102, 105 and 156 reject it before anything runs) and gives its results to walk.
    virtual std::unique_ptr<Batch> execute(std::string_view text) = 0;

    /// Holds every row that a SELECT on one table finds. Throws 1222 at once when another session holds one of them.
    /// Other sessions' writes to a held row fail with 1222; this session's own pass.
    virtual std::unique_ptr<RowHold> hold(std::string_view select) = 0;

    virtual const std::string& database() const = 0;
    /// Last identity value given in this session, 0 where none.
    virtual std::int64_t lastIdentity() const = 0;
};

} // namespace engine

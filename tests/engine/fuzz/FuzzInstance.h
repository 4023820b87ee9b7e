#pragma once

#include "engine/run/InternalErrors.h"
#include "engine/run/Session.h"
#include "engine/store/Instance.h"
#include "os/Machine.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace engine::fuzz {

inline constexpr const char* kSchema =
    "CREATE TABLE tipi (id int IDENTITY (1, 1) NOT NULL PRIMARY KEY, b bit, t tinyint, s smallint, g bigint, r real,"
    " f float, d decimal(18, 2), q datetime, c char(5), v varchar(20), n nvarchar(20), m nvarchar(4000), x ntext)";
inline constexpr const char* kRow =
    "INSERT INTO tipi (b, t, s, g, r, f, d, q, c, v, n, m, x) VALUES (1, 2, 3, 4, 0.5, 2.5, -1.25, '20040307', 'abc',"
    " 'perché', N'Città', N'lungo', N'più lungo')";

/// An instance that the runs of a fuzz target share until it has seen many: a login of its own, one table of all types
/// and one of many rows. An internal error is a finding: it ends the target.
class FuzzInstance {
public:
    FuzzInstance() {
        onInternalError([](const char* what) {
            std::fprintf(stderr, "internal error: %s\n", what);
            std::abort();
        });
    }
    FuzzInstance(const FuzzInstance&) = delete;
    FuzzInstance& operator=(const FuzzInstance&) = delete;

    std::shared_ptr<Instance> get() {
        if (instance_ && ++runs_ < kRunsOfOne) {
            return instance_;
        }
        remove();
        runs_ = 0;
        folder_ = std::filesystem::temp_directory_path() / ("engine-fuzz-" + std::to_string(os::processNumber()));
        std::filesystem::create_directories(folder_ / "drive");
        instance_ = Instance::create(folder_ / "server", {[this](std::string_view path) { return onDrive(path); }});
        instance_->addLogin("sa", "segreta");
        instance_->createDatabase("prova", "", "");
        const auto session = Session::open(instance_, {"", "", "prova"});
        for (const char* text : {kSchema, kRow, "INSERT INTO tipi (b) VALUES (NULL)", "CREATE TABLE molte (n int)",
                                 "INSERT INTO molte VALUES (1)"})
            session->execute(text)->nextResult();
        for (int rows = 1; rows < kManyRows; rows *= 2) {
            session->execute("INSERT INTO molte SELECT n FROM molte")->nextResult();
        }
        return instance_;
    }
    ~FuzzInstance() { remove(); }

private:
    static constexpr int kRunsOfOne = 2000;
    static constexpr int kManyRows = 256; ///< enough for the server to look whether it is asked to stop

    /// No path of a client leads out of the folder.
    std::filesystem::path onDrive(std::string_view path) const {
        std::string name(path);
        std::replace_if(
            name.begin(), name.end(), [](char c) { return c == '/' || c == '\\' || c == '\0'; }, '_');
        return folder_ / "drive" / ("f" + name);
    }
    void remove() {
        instance_.reset();
        std::error_code ignored;
        if (!folder_.empty()) {
            std::filesystem::remove_all(folder_, ignored);
        }
    }

    std::filesystem::path folder_;
    std::shared_ptr<Instance> instance_;
    int runs_ = 0;
};

} // namespace engine::fuzz

#pragma once

#include "engine/run/Session.h"
#include "platform/Workstation.h"
#include "support/Peer.h"
#include "support/TemporaryFolder.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace support {

/// The workstation of one test, in a temporary folder: the sample workstation (two companies with a small ledger, one
/// instance that is both server and local instance) or an empty drive C. While this object lives it is the program's
/// workstation, and the globals start at zero. The machine is called "POSTO-7", hence the terminal "POSTO_7". With the
/// wire driver the instance is in another folder and served by a Peer, which all pointer files of the sample name.
///
///     TestWorkstation workstation;
///     EXPECT_EQ(workstation.value(kCompany, "select count(*) from stati"), "249");
class TestWorkstation {
public:
    enum class DriveC { Sample, Empty };

    explicit TestWorkstation(DriveC content = DriveC::Sample);
    TestWorkstation(const TestWorkstation&) = delete;
    TestWorkstation& operator=(const TestWorkstation&) = delete;
    ~TestWorkstation();

    const platform::DriveC& driveC() const;
    /// The user's data sources as the text of a file; empty before the first one is registered.
    std::string dataSources() const;
    /// The file they are in, or are called by (see DataSourceStore.h).
    std::filesystem::path dataSourceFile() const;
    /// The server's name in the sample's pointer files.
    std::string serverName() const;
    /// The server process. Throws std::logic_error with the embedded driver.
    Peer& peer() const;

    /// The text of a file of drive C, in UTF-8; nothing where it is missing.
    std::optional<std::string> fileText(std::string_view path) const;
    /// Writes a file with this text and creates its folders.
    void putFile(std::string_view path, std::string_view text) const;
    /// Throws std::runtime_error where there is none.
    void removeFile(std::string_view path) const;

    // Direct access to the server's tables, not through the program's connections.
    std::unique_ptr<engine::Session> engineSession(const std::string& database) const;
    using Row = std::vector<std::string>;
    /// All rows of a selection, each value as text, NULL as "NULL".
    std::vector<Row> rows(const std::string& database, const std::string& sql) const;
    /// The only row; fails the test where there is none or more than one.
    Row row(const std::string& database, const std::string& sql) const;
    /// The first value of the only row.
    std::string value(const std::string& database, const std::string& sql) const;
    /// The rows of every table of a database, by the table's name.
    std::map<std::string, std::vector<Row>> tables(const std::string& database) const;
    /// Sets the version that the server pretends to have; see engine::Instance.
    void playServerVersion(int version) const;
    std::vector<std::pair<std::string, bool>> databaseOptions(const std::string& database) const;
    /// Runs a text to its end.
    void run(const std::string& database, const std::string& sql) const;
    /// Drops a database once nobody uses it: a server behind a wire learns a moment later that a connection is closed.
    /// Throws engine::Error where somebody goes on using it.
    void drop(const std::string& database) const;
    /// The file that the server keeps a database in.
    std::filesystem::path databaseFile(const std::string& database) const;
    /// Waits until a server behind a wire knows that a program has ended which held rows. Throws std::runtime_error
    /// where somebody goes on holding one.
    void waitUntilNoRowIsHeld(const std::string& database) const;

private:
    void moveServerBehindTheWire();

    TemporaryFolder folder_;
    TemporaryFolder server_; ///< empty with the embedded driver
    std::filesystem::path instance_;
    std::unique_ptr<Peer> peer_;
};

inline constexpr const char* kTerminalName = "POSTO_7";
/// The sample's instance; also the name that the program composes for a local instance.
inline constexpr const char* kLocalServerName = "POSTO_7\\sqlexpress";
inline constexpr const char* kControlDatabase = "vabodatiazienda";
inline constexpr const char* kTemporaryDatabase = "VaBoDatiTemp";
/// The first company of the sample, which a new terminal takes up.
inline constexpr const char* kCompany = "VaBoDatiAurora";
inline constexpr const char* kOtherCompany = "VaBoDatiPonte";

} // namespace support

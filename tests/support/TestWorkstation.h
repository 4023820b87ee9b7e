#pragma once

#include "engine/run/Session.h"
#include "platform/Workstation.h"
#include "support/Peer.h"
#include "support/TemporaryFolder.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace support {

/// The workstation of one test, in a temporary folder: the sample workstation (two companies with a small ledger, one
/// instance that is server and local instance) or an empty drive C. It is the present one of the program while it
/// lives, with the globals at zero; the machine is called "POSTO-7", the terminal therefore "POSTO_7". On the road over
/// the wire the instance lies elsewhere, served by a Peer, which all pointer files of the sample name.
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
    /// The user's file of data sources; not there before the first one is registered.
    std::filesystem::path dataSourceFile() const;
    /// The server's name as the sample's pointer files have it.
    std::string serverName() const;
    /// The process behind the wire. Throws std::logic_error on the embedded road.
    Peer& peer() const;

    /// The bytes of a file of drive C; nothing where it is missing.
    std::optional<std::string> fileText(std::string_view path) const;
    /// Makes the file with these bytes, its folders too.
    void putFile(std::string_view path, std::string_view bytes) const;

    // Beside the program's own connections: straight into the server's tables.
    std::unique_ptr<engine::Session> engineSession(const std::string& database) const;
    using Row = std::vector<std::string>;
    /// All rows of a selection, each value as text, NULL as "NULL".
    std::vector<Row> rows(const std::string& database, const std::string& sql) const;
    /// The one row; fails the test where there is none or more.
    Row row(const std::string& database, const std::string& sql) const;
    /// The first value of the one row.
    std::string value(const std::string& database, const std::string& sql) const;
    /// The server plays another version from now on; see engine::Instance.
    void playServerVersion(int version) const;
    std::vector<std::pair<std::string, bool>> databaseOptions(const std::string& database) const;
    /// Runs a text to its end.
    void run(const std::string& database, const std::string& sql) const;

private:
    void moveServerBehindTheWire();

    TemporaryFolder folder_;
    TemporaryFolder server_; ///< empty on the embedded road
    std::filesystem::path instance_;
    std::unique_ptr<Peer> peer_;
};

inline constexpr const char* kTerminalName = "POSTO_7";
/// The instance that the sample is laid down with; also the name that the program itself composes for a local one.
inline constexpr const char* kLocalServerName = "POSTO_7\\sqlexpress";
inline constexpr const char* kControlDatabase = "vabodatiazienda";
inline constexpr const char* kTemporaryDatabase = "VaBoDatiTemp";
/// The first company of the sample, the one that a new terminal takes up.
inline constexpr const char* kCompany = "VaBoDatiAurora";
inline constexpr const char* kOtherCompany = "VaBoDatiPonte";

} // namespace support

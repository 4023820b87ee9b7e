#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/LinkFile.h"
#include "os/Paths.h"
#include "platform/AutomationObject.h"
#include "platform/FileLinkCatalogs.h"
#include "platform/SystemLinkCatalogs.h"
#include "platform/Workstation.h"

#include <algorithm>
#include <array>
#include <utility>

namespace platform {

namespace {

/// The first one is for processes of 32 bits alone; its successors read the same files.
constexpr std::array kProviders = {"Microsoft.Jet.OLEDB.4.0", "Microsoft.ACE.OLEDB.16.0", "Microsoft.ACE.OLEDB.12.0"};
constexpr const char* kCatalog = "ADOX.Catalog";
constexpr const char* kConnection = "ADODB.Connection";
constexpr int kProviderString = 5; ///< its place among the properties of a link

ado::Value valueOf(const std::optional<std::string>& text) {
    return text ? ado::Value(*text) : ado::Value();
}

class JetTable : public CatalogTable {
public:
    explicit JetTable(AutomationObject table) : table_(std::move(table)) {}

    ado::Value Type() override { return valueOf(table_.text("Type")); }
    ado::Value Name() override { return valueOf(table_.text("Name")); }
    ado::Value ProviderString() override { return valueOf(provider().text("Value")); }
    void setProviderString(const std::string& text) override { provider().put("Value", text); }
    void RefreshProperties() override { table_.object("Properties").call("Refresh"); }

private:
    AutomationObject provider() const { return table_.object("Properties").object("Item", {kProviderString}); }

    AutomationObject table_;
};

class JetCatalog : public LinkCatalog {
public:
    explicit JetCatalog(const std::string& connection) : connection_(kConnection), catalog_(kCatalog) {
        connection_.put("ConnectionString", connection);
        connection_.call("Open");
        catalog_.put("ActiveConnection", connection_);
    }
    ~JetCatalog() override {
        try {
            connection_.call("Close");
        } catch (const ado::Error&) { // NOLINT(bugprone-empty-catch)
            // Nobody needs it any more.
        }
    }
    JetCatalog(const JetCatalog&) = delete;
    JetCatalog& operator=(const JetCatalog&) = delete;

    int Count() override { return tables().number("Count"); }
    void Refresh() override { tables().call("Refresh"); }
    std::vector<std::shared_ptr<CatalogTable>> Tables() override {
        std::vector<std::shared_ptr<CatalogTable>> found;
        const AutomationObject all = tables();
        const int count = all.number("Count");
        for (int place = 0; place < count; ++place) {
            found.push_back(std::make_shared<JetTable>(all.object("Item", {place})));
        }
        return found;
    }

private:
    AutomationObject tables() const { return catalog_.object("Tables"); }

    AutomationObject connection_;
    AutomationObject catalog_;
};

/// A file that is a catalog of the program's own needs no provider.
class JetCatalogs : public FileLinkCatalogs {
public:
    explicit JetCatalogs(std::string provider) : provider_(std::move(provider)) {}

    std::unique_ptr<LinkCatalog> open(const std::string& connection) override {
        // The provider knows the system's paths, not those of a folder that stands for the drive.
        const ado::ConnectionString text(connection);
        const std::filesystem::path place = workstation().driveC.real(text.server());
        if (ado::LinkFile::isOne(place)) {
            return FileLinkCatalogs::open(connection);
        }
        return std::make_unique<JetCatalog>("Provider=" + provider_ + ";Data Source=" + os::utf8Of(place));
    }

private:
    std::string provider_;
};

} // namespace

std::unique_ptr<LinkCatalogs> systemLinkCatalogs() {
    const auto* const provider = std::ranges::find_if(kProviders, AutomationObject::isLibrary);
    if (provider != kProviders.end() && AutomationObject::isLibrary(kCatalog)) {
        return std::make_unique<JetCatalogs>(*provider);
    }
    return std::make_unique<FileLinkCatalogs>();
}

} // namespace platform

#include "platform/FileLinkCatalogs.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/LinkFile.h"
#include "ado/Names.h"
#include "platform/Workstation.h"

#include <optional>
#include <utility>

namespace platform {

namespace {

constexpr const char* kProvider = "Microsoft.Jet.OLEDB.4.0";

class FileTable : public CatalogTable {
public:
    FileTable(std::shared_ptr<ado::LinkFile> file, ado::LinkFile::Entry entry)
        : file_(std::move(file)), entry_(std::move(entry)) {}

    ado::Value Type() override { return entry_.type; }
    ado::Value Name() override { return entry_.name; }
    ado::Value ProviderString() override { return file_->provider(entry_.id); }
    void setProviderString(const std::string& text) override { file_->setProvider(entry_.id, text); }
    void RefreshProperties() override { file_->provider(entry_.id); } // always read from the file

private:
    std::shared_ptr<ado::LinkFile> file_;
    ado::LinkFile::Entry entry_;
};

class FileCatalog : public LinkCatalog {
public:
    explicit FileCatalog(const std::filesystem::path& file) : file_(std::make_shared<ado::LinkFile>(file)) {}

    int Count() override { return static_cast<int>(entries().size()); }
    void Refresh() override { entries_ = file_->entries(); }
    std::vector<std::shared_ptr<CatalogTable>> Tables() override {
        std::vector<std::shared_ptr<CatalogTable>> tables;
        for (const ado::LinkFile::Entry& entry : entries()) {
            tables.push_back(std::make_shared<FileTable>(file_, entry));
        }
        return tables;
    }

private:
    const std::vector<ado::LinkFile::Entry>& entries() {
        if (!entries_) {
            Refresh();
        }
        return *entries_;
    }

    std::shared_ptr<ado::LinkFile> file_;
    std::optional<std::vector<ado::LinkFile::Entry>> entries_;
};

} // namespace

std::unique_ptr<LinkCatalog> FileLinkCatalogs::open(const std::string& connection) {
    const ado::ConnectionString text(connection);
    if (!ado::sameName(text.provider(), kProvider)) {
        throw ado::Error(ado::kProviderNotFound);
    }
    return std::make_unique<FileCatalog>(workstation().driveC.real(text.server()));
}

} // namespace platform

#pragma once

#include "platform/LinkCatalogs.h"

#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

/// The workstation's local databases while this object lives: one, whose every operation is recorded and may fail. The
/// tables' operations are called by the table's place ("Name 1").
class CatalogoFinto {
public:
    struct Tabella {
        ado::Value type, name, provider;
    };

    explicit CatalogoFinto(std::vector<Tabella> tables) : tables(std::move(tables)) {
        platform::setLinkCatalogs(std::make_unique<Catalogs>(*this));
    }
    CatalogoFinto(const CatalogoFinto&) = delete;
    CatalogoFinto& operator=(const CatalogoFinto&) = delete;
    ~CatalogoFinto() { platform::setLinkCatalogs(nullptr); }

    std::vector<Tabella> tables;
    std::set<std::string> failing;
    std::vector<std::string> calls, opened;

private:
    void call(const std::string& operation) {
        calls.push_back(operation);
        if (failing.contains(operation)) {
            throw std::runtime_error(operation + " was refused.");
        }
    }

    class Table : public platform::CatalogTable {
    public:
        Table(CatalogoFinto& owner, std::size_t place) : owner_(owner), place_(place) {}
        ado::Value Type() override { return ask("Type").type; }
        ado::Value Name() override { return ask("Name").name; }
        ado::Value ProviderString() override { return ask("read").provider; }
        void setProviderString(const std::string& text) override { ask("write").provider = text; }
        void RefreshProperties() override { ask("refresh"); }

    private:
        Tabella& ask(const std::string& operation) {
            owner_.call(operation + " " + std::to_string(place_ + 1));
            return owner_.tables.at(place_);
        }
        CatalogoFinto& owner_;
        std::size_t place_;
    };

    class Catalog : public platform::LinkCatalog {
    public:
        explicit Catalog(CatalogoFinto& owner) : owner_(owner) {}
        ~Catalog() override { owner_.calls.emplace_back("close"); }
        int Count() override {
            owner_.call("Count");
            return static_cast<int>(owner_.tables.size());
        }
        void Refresh() override { owner_.call("Refresh"); }
        std::vector<std::shared_ptr<platform::CatalogTable>> Tables() override {
            owner_.call("Tables");
            std::vector<std::shared_ptr<platform::CatalogTable>> all;
            for (std::size_t place = 0; place < owner_.tables.size(); ++place) {
                all.push_back(std::make_shared<Table>(owner_, place));
            }
            return all;
        }

    private:
        CatalogoFinto& owner_;
    };

    class Catalogs : public platform::LinkCatalogs {
    public:
        explicit Catalogs(CatalogoFinto& owner) : owner_(owner) {}
        std::unique_ptr<platform::LinkCatalog> open(const std::string& connection) override {
            owner_.opened.push_back(connection);
            owner_.call("open");
            return std::make_unique<Catalog>(owner_);
        }

    private:
        CatalogoFinto& owner_;
    };
};

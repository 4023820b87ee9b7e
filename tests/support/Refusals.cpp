#include "support/Refusals.h"

#include "ado/Drivers.h"
#include "ado/Error.h"
#include "platform/FileLinkCatalogs.h"

#include <utility>

namespace support {

class Refusals::Counter {
public:
    void begin(int place, Lasting lasting) {
        asked.clear();
        place_ = place;
        lasting_ = lasting;
    }
    void ask(std::string_view what) {
        asked.emplace_back(what);
        const int now = static_cast<int>(asked.size());
        if (place_ > 0 && (now == place_ || (lasting_ == Lasting::FromThere && now > place_))) {
            throw ado::Error(ado::kUnspecified, kRefusal);
        }
    }

    std::vector<std::string> asked;

private:
    int place_ = 0;
    Lasting lasting_ = Lasting::Once;
};

class Refusals::Wrapper {
public:
    explicit Wrapper(const std::shared_ptr<Counter>& counter) : driver_(counter) {
        ado::setDriverWrapper([this](ado::Driver& real) -> ado::Driver& {
            driver_.real = &real;
            return driver_;
        });
        platform::setLinkCatalogs(std::make_unique<Catalogs>(counter));
    }
    ~Wrapper() {
        ado::setDriverWrapper({});
        platform::setLinkCatalogs(nullptr);
    }
    Wrapper(const Wrapper&) = delete;
    Wrapper& operator=(const Wrapper&) = delete;

private:
    class Hold : public ado::DriverHold {
    public:
        Hold(std::shared_ptr<Counter> counter, std::unique_ptr<ado::DriverHold> real)
            : counter_(std::move(counter)), real_(std::move(real)) {}
        std::unique_ptr<ado::DriverResult> rows() override { return real_->rows(); }
        std::unique_ptr<ado::DriverResult> run(std::string_view text) override {
            counter_->ask(text);
            return real_->run(text);
        }
        void release() override { real_->release(); }

    private:
        std::shared_ptr<Counter> counter_;
        std::unique_ptr<ado::DriverHold> real_;
    };

    class Connection : public ado::DriverConnection {
    public:
        Connection(std::shared_ptr<Counter> counter, std::unique_ptr<ado::DriverConnection> real)
            : counter_(std::move(counter)), real_(std::move(real)) {}
        std::unique_ptr<ado::DriverResult> run(std::string_view text) override {
            counter_->ask(text);
            return real_->run(text);
        }
        std::string holdingHint() const override { return real_->holdingHint(); }
        void nameSources(const std::string& statement, std::vector<ado::FieldDescription>& fields) override {
            real_->nameSources(statement, fields);
        }
        std::unique_ptr<ado::DriverHold> hold(std::string_view select) override {
            counter_->ask("hold: " + std::string(select));
            return std::make_unique<Hold>(counter_, real_->hold(select));
        }
        std::int64_t lastIdentity() override {
            counter_->ask("identity");
            return real_->lastIdentity();
        }
        std::vector<std::string> primaryKey(const std::string& table) override {
            counter_->ask("key of " + table);
            return real_->primaryKey(table);
        }
        bool alive() const override { return real_->alive(); }

    private:
        std::shared_ptr<Counter> counter_;
        std::unique_ptr<ado::DriverConnection> real_;
    };

    class Driver : public ado::Driver {
    public:
        explicit Driver(std::shared_ptr<Counter> counter) : counter_(std::move(counter)) {}
        const char* name() const override { return real->name(); }
        std::unique_ptr<ado::DriverConnection> connect(const ado::ConnectionString& text) override {
            counter_->ask("login to " + text.database());
            return std::make_unique<Connection>(counter_, real->connect(text));
        }

        ado::Driver* real = nullptr;

    private:
        std::shared_ptr<Counter> counter_;
    };

    class Link : public platform::CatalogTable {
    public:
        Link(std::shared_ptr<Counter> counter, std::shared_ptr<platform::CatalogTable> real)
            : counter_(std::move(counter)), real_(std::move(real)) {}
        ado::Value Type() override { return ask("type").Type(); }
        ado::Value Name() override { return ask("name").Name(); }
        ado::Value ProviderString() override { return ask("text").ProviderString(); }
        void setProviderString(const std::string& text) override { ask("write").setProviderString(text); }
        void RefreshProperties() override { ask("refresh").RefreshProperties(); }

    private:
        platform::CatalogTable& ask(const std::string& what) {
            counter_->ask("link: " + what);
            return *real_;
        }

        std::shared_ptr<Counter> counter_;
        std::shared_ptr<platform::CatalogTable> real_;
    };

    class Catalog : public platform::LinkCatalog {
    public:
        Catalog(std::shared_ptr<Counter> counter, std::unique_ptr<platform::LinkCatalog> real)
            : counter_(std::move(counter)), real_(std::move(real)) {}
        int Count() override { return ask("count").Count(); }
        void Refresh() override { ask("refresh").Refresh(); }
        std::vector<std::shared_ptr<platform::CatalogTable>> Tables() override {
            std::vector<std::shared_ptr<platform::CatalogTable>> tables;
            for (auto& table : ask("tables").Tables()) {
                tables.push_back(std::make_shared<Link>(counter_, std::move(table)));
            }
            return tables;
        }

    private:
        platform::LinkCatalog& ask(const std::string& what) {
            counter_->ask("local file: " + what);
            return *real_;
        }

        std::shared_ptr<Counter> counter_;
        std::unique_ptr<platform::LinkCatalog> real_;
    };

    class Catalogs : public platform::LinkCatalogs {
    public:
        explicit Catalogs(std::shared_ptr<Counter> counter) : counter_(std::move(counter)) {}
        std::unique_ptr<platform::LinkCatalog> open(const std::string& connection) override {
            counter_->ask("local file " + connection.substr(connection.rfind('\\') + 1));
            return std::make_unique<Catalog>(counter_, real_.open(connection));
        }

    private:
        std::shared_ptr<Counter> counter_;
        platform::FileLinkCatalogs real_;
    };

    Driver driver_;
};

Refusals::Refusals() : counter_(std::make_shared<Counter>()), wrapper_(std::make_unique<Wrapper>(counter_)) {}
Refusals::~Refusals() {
    begin(); // connections may live longer than this object
}

void Refusals::begin(int place, Lasting lasting) {
    counter_->begin(place, lasting);
}

const std::vector<std::string>& Refusals::asked() const {
    return counter_->asked;
}

} // namespace support

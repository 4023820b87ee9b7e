#pragma once

#include "platform/DataSources.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace support {

/// A registry of data sources that only records its calls. In the attributes a carriage return is shown as "|" and a
/// zero character as "~".
///
///     RecordedDataSources registry;
///     RegistraOdbc(1, 2, "Tlv_Temp", …);
///     EXPECT_EQ(registry.calls(), Strings{"register Tlv_Temp, SQL Server: …", "configure 1, SQL Server: …"});
class RecordedDataSources {
public:
    RecordedDataSources() { platform::setDataSources(std::make_unique<Registry>(*this)); }
    RecordedDataSources(const RecordedDataSources&) = delete;
    RecordedDataSources& operator=(const RecordedDataSources&) = delete;
    ~RecordedDataSources() { platform::setDataSources(nullptr); }

    const std::vector<std::string>& calls() const { return calls_; }
    void forget() { calls_.clear(); }

    std::vector<std::string> names;   ///< the data sources in the registry
    bool refusesRegistration = false; ///< registerDatabase throws
    std::int32_t result = 1;          ///< of configure

private:
    class Registry : public platform::DataSources {
    public:
        explicit Registry(RecordedDataSources& owner) : owner_(owner) {}
        std::vector<std::string> names() override { return owner_.names; }
        void registerDatabase(const std::string& name, const std::string& driver, bool silent,
                              const std::string& attributes) override {
            owner_.calls_.push_back("register " + name + ", " + driver + (silent ? ": " : ", asking: ") +
                                    readable(attributes));
            if (owner_.refusesRegistration) {
                throw std::runtime_error("The driver isn't there.");
            }
        }
        std::int32_t configure(std::int16_t request, const std::string& driver,
                               const std::string& attributes) override {
            owner_.calls_.push_back("configure " + std::to_string(request) + ", " + driver + ": " +
                                    readable(attributes));
            return owner_.result;
        }

    private:
        static std::string readable(std::string attributes) {
            for (char& c : attributes) {
                c = c == '\r' ? '|' : c == '\0' ? '~' : c;
            }
            return attributes;
        }
        RecordedDataSources& owner_;
    };

    std::vector<std::string> calls_;
};

} // namespace support

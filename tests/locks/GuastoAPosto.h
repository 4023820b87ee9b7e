#pragma once

#include "ado/Connection.h"
#include "ado/Error.h"

#include <string>

namespace vabo {

/// Counts the statements that the program sends, and refuses some of them in the server's stead.
class GuastoAPosto {
public:
    enum class Durata { Una, DaQui };
    static constexpr const char* kRifiuto = "Rifiutata per prova";

    /// `posto` counts from 1; 0 refuses nothing.
    explicit GuastoAPosto(int posto = 0, Durata durata = Durata::Una) {
        ado::setStatementRecorder([this, posto, durata](const std::string& /*testo*/) {
            ++inviate_;
            if (posto > 0 && (inviate_ == posto || (durata == Durata::DaQui && inviate_ > posto))) {
                throw ado::Error(ado::kUnspecified, kRifiuto);
            }
        });
    }
    GuastoAPosto(const GuastoAPosto&) = delete;
    GuastoAPosto& operator=(const GuastoAPosto&) = delete;
    ~GuastoAPosto() { ado::setStatementRecorder({}); }

    int inviate() const { return inviate_; }

private:
    int inviate_ = 0;
};

} // namespace vabo

#pragma once

#include "ado/Connection.h"
#include "controls/Form.h"

#include <memory>
#include <string>

namespace Ui {
class FormRegistraAziendeNeiDns;
}

namespace vabo {

struct CampiAzienda;

/// Tests a server, writes its connection text to the pointer files and registers the data sources of the company and of
/// the local databases.
class FormRegistraAziendeNeiDns : public controls::Form {
    Q_OBJECT
public:
    FormRegistraAziendeNeiDns();
    ~FormRegistraAziendeNeiDns() override;

    /// Fills the list of data sources: first the entry for none, then those that exist.
    void GetDSNsAndDrivers();

protected:
    void Load() override;
    void Unload() override;

private:
    void CollegaCampi();
    void MostraCampi(const CampiAzienda& campi);
    CampiAzienda Campi() const;
    void ScegliFonte();
    void ScegliDriver();
    void LasciaPassword();
    void ProvaServer();
    void Registra();
    bool ApriConnessione(const CampiAzienda& campi);

    std::unique_ptr<Ui::FormRegistraAziendeNeiDns> ui_;
    ado::Connection connessione_; ///< opened by a registration, closed when the form is unloaded
    std::string StringaBase;      ///< the connection text without a database
    std::string StringaDb;        ///< its part with the database
};

} // namespace vabo

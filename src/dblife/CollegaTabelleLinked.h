#pragma once

// The links of the workstation's local databases: each is pointed at the company that was taken up. Failing statements
// are skipped, so a link that can't be written stays as it was.

#include <string>

namespace vabo {

/// Where the run tells which table it has come to. The last one that was created and still lives is told; the progress
/// form is one while it exists.
class VistaCollegamenti {
public:
    VistaCollegamenti();
    VistaCollegamenti(const VistaCollegamenti&) = delete;
    VistaCollegamenti& operator=(const VistaCollegamenti&) = delete;

    virtual void MostraTabella(const std::string& nome) = 0;
    /// How much of the file's tables is behind, from 0 to 1.
    virtual void MostraParte(double parte) = 0;
    virtual void Aggiorna() = 0; ///< paints at once

protected:
    ~VistaCollegamenti();
};

/// The company's own local file, then the file of the customer's reports. FormRefreshLinks is shown meanwhile.
void CollegaTabelle();
/// The file of the customer's reports, where the workstation has one.
void CollegaTabellePersonalizzate();

} // namespace vabo

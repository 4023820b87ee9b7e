#pragma once

#include "controls/Form.h"

#include <memory>

namespace ado {
class Value;
}
namespace Ui {
class IndirizzoVaboSuServer;
}

namespace vabo {

/// Where the work folder of the suite lies on the server: the user picks it, and the pointer files are written.
class IndirizzoVaboSuServer : public controls::Form {
    Q_OBJECT
public:
    IndirizzoVaboSuServer();
    ~IndirizzoVaboSuServer() override;

    /// The first line of the server's pointer file. Raises platform::FileError.
    ado::Value Leggi_Server() const;

protected:
    void Load() override;
    void Unload() override;

private:
    void Scegli();

    std::unique_ptr<Ui::IndirizzoVaboSuServer> ui_;
};

} // namespace vabo

#pragma once

#include "controls/Form.h"
#include "dblife/CollegaTabelleLinked.h"

#include <memory>

namespace Ui {
class Avvio;
}

namespace vabo {

/// Shown while the linked tables are set to another company; it looks like the start form.
class FormRefreshLinks : public controls::Form, public VistaCollegamenti {
    Q_OBJECT
public:
    FormRefreshLinks();
    ~FormRefreshLinks() override;

    void MostraTabella(const std::string& nome) override;
    void MostraParte(double parte) override;
    void Aggiorna() override { Refresh(); }

protected:
    void Load() override;

private:
    std::unique_ptr<Ui::Avvio> ui_;
};

} // namespace vabo

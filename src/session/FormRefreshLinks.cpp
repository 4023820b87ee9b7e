#include "session/FormRefreshLinks.h"

#include "session/Avviamento.h"
#include "ui_Avvio.h"

namespace vabo {

FormRefreshLinks::FormRefreshLinks() : Form("FormRefreshLinks"), ui_(std::make_unique<Ui::Avvio>()) {
    ui_->setupUi(this);
    setWindowTitle(ui_->lblCompanyProduct->text());
}

FormRefreshLinks::~FormRefreshLinks() = default;

void FormRefreshLinks::Load() {
    ui_->lblVersion->setText(QString::fromStdString(TestoVersione()));
    Refresh();
}

} // namespace vabo

#include "session/FormRefreshLinks.h"

#include "session/Avviamento.h"
#include "ui_Avvio.h"

#include <algorithm>

namespace vabo {

namespace {

/// The name in one line that isn't wider than its place, since the window would grow with it.
QString InUnaRiga(const std::string& nome, const QLabel& posto) {
    QString testo = QString::fromStdString(nome);
    const auto controllo = [](QChar c) { return c.category() == QChar::Other_Control; };
    std::replace_if(testo.begin(), testo.end(), controllo, QLatin1Char(' '));
    return posto.fontMetrics().elidedText(testo, Qt::ElideRight, posto.width());
}

} // namespace

FormRefreshLinks::FormRefreshLinks() : Form("FormRefreshLinks"), ui_(std::make_unique<Ui::Avvio>()) {
    ui_->setupUi(this);
    setWindowTitle(ui_->lblCompanyProduct->text());
}

FormRefreshLinks::~FormRefreshLinks() = default;

void FormRefreshLinks::Load() {
    ui_->lblVersion->setText(QString::fromStdString(TestoVersione()));
    Refresh();
}

void FormRefreshLinks::MostraTabella(const std::string& nome) {
    ui_->Nome->setText(InUnaRiga(nome, *ui_->Nome));
}

void FormRefreshLinks::MostraParte(double parte) {
    ui_->ProgressBar1->setValue(ui_->ProgressBar1->Max() * parte);
}

} // namespace vabo

#pragma once

#include <QString>

namespace vabo {

/// The postal code in a field, brought to five digits: where the field is shorter, zeros and `codCap`, which is the
/// code as the table has it. The field is looked at anew after each length.
QString RiempiCap(QString campo, const QString& codCap);

} // namespace vabo

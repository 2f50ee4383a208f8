#pragma once

#include <QString>

namespace orvinel {

// "name(index)", the fixed name of a member of a control array.
QString arrayName(const QString& name, int index);

// A text for controls that take "&" for a mnemonic.
QString verbatim(QString text);

} // namespace orvinel

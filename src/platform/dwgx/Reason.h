#pragma once

#include <QCoreApplication>

namespace dwgx {

/** Why something is refused, as people read it. In English, unless the application has a translator for the context "host".
 *  Reasons that stand in a table are marked there by QT_TRANSLATE_NOOP("host", ...). */
class Reason
{
    Q_DECLARE_TR_FUNCTIONS(host)
};

} // namespace dwgx

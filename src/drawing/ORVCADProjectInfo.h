#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

/** What a caller says of a project: a value that the library hands on and neither fills nor reads, so the fields have no
 *  meaning here. */
struct ORVCADProjectInfo
{
    QString firstText;               ///< the caller's own
    qint64 firstNumber = 0;          ///< the caller's own
    QString secondText;              ///< the caller's own
    QString thirdText;               ///< the caller's own
    QVariant value;                  ///< the caller's own
    QHash<QString, QVariant> values; ///< the caller's own
    qint64 secondNumber = 0;         ///< the caller's own
    qint64 thirdNumber = 0;          ///< the caller's own
};

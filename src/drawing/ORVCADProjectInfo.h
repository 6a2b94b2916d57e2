#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

/** What a caller says of a project: a value that the library hands on and neither fills nor reads, so the fields have no
 *  meaning here. */
struct ORVCADProjectInfo
{
    QString firstText;
    qint64 firstNumber = 0;
    QString secondText;
    QString thirdText;
    QVariant value;
    QHash<QString, QVariant> values;
    qint64 secondNumber = 0;
    qint64 thirdNumber = 0;
};

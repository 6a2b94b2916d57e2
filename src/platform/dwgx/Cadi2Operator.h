#pragma once

#include "platform/dwgx/HBXCADIOperator.h"

namespace dwgx {

/** Reads and writes `.cadi2` drawing files (docs/formats/cadi2.md). */
class Cadi2Operator : public HBXCADIOperator
{
public:
    bool read(const QString &path, DWGXModel *model) override;
    bool write(const QString &path, const DWGXModel *model, const QString &title, const QString &remark) override;
    QString lastErrorReason() const override { return m_reason; }
    /** Empty for the file as a whole. */
    QString lastErrorPlace() const override { return m_place; }

private:
    bool succeed();
    bool fail(const QString &reason, const QString &place = QString());
    bool readBytes(const QString &path, QByteArray &bytes);

    QString m_reason;
    QString m_place;
};

} // namespace dwgx

#include "platform/dwgx/Cadi2Operator.h"

#include "platform/dwgx/Cadi2Format.h"
#include "platform/dwgx/Cadi2Reader.h"
#include "platform/dwgx/Cadi2Writer.h"
#include "platform/dwgx/Reason.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

namespace dwgx {
namespace {

/** Whoever holds the attached data goes on holding it; only what it says is replaced. */
void adoptExtData(const DWGXObject &source, DWGXObject &target)
{
    if (!source.getCADExtData())
        return;
    if (!target.getCADExtData())
        target.setCADExtData(new HBXCADExtData);
    *target.getCADExtData() = *source.getCADExtData();
}

/** JSON has no number for the others. */
bool isFinite(const DWGXViewerInfoData &viewer)
{
    return std::isfinite(viewer.zoom) && std::isfinite(viewer.turn) &&
           std::all_of(viewer.orientation.begin(), viewer.orientation.end(),
                       [](float term) { return std::isfinite(term); });
}

} // namespace

bool Cadi2Operator::succeed()
{
    m_reason.clear();
    m_place.clear();
    return true;
}

bool Cadi2Operator::fail(const QString &reason, const QString &place)
{
    m_reason = reason;
    m_place = place;
    return false;
}

bool Cadi2Operator::readBytes(const QString &path, QByteArray &bytes)
{
    if (!QFileInfo(path).isFile())
        return fail(Reason::tr("there is no such file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    if (file.size() > cadi2::kMaxFileBytes)
        return fail(Reason::tr("is larger than %1 bytes").arg(cadi2::kMaxFileBytes));
    bytes = file.readAll(); // not read(limit), which takes the memory of the limit for every file
    return file.error() == QFileDevice::NoError || fail(file.errorString());
}

bool Cadi2Operator::read(const QString &path, DWGXModel *model)
{
    if (!model)
        return fail(Reason::tr("there is no drawing to read into"));
    QByteArray bytes;
    if (!readBytes(path, bytes))
        return false;
    JsonRefusal refusal;
    const auto drawing = readCadi2(bytes, refusal);
    if (!drawing)
        return fail(refusal.reason, refusal.place);
    model->swapContent(*drawing);
    adoptExtData(*drawing, *model);
    model->setFilePath(path);
    return succeed();
}

bool Cadi2Operator::write(const QString &path, const DWGXModel *model, const QString &title, const QString &remark)
{
    if (!model)
        return fail(Reason::tr("there is no drawing to write"));
    if (!isFinite(model->getViewerInfoData()))
        return fail(Reason::tr("is not finite"), cadi2::key::viewer);
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return fail(Reason::tr("is no file")); // which a file would take the place of
    QSaveFile file(path);
    // Committing does not tell of a short write while part of it waits in the buffer.
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(writeCadi2(*model, title, remark)) >= 0 &&
                           file.flush() && file.commit();
    return isWritten ? succeed() : fail(file.errorString());
}

} // namespace dwgx

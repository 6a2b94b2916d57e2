#pragma once

#include "platform/embedded/HBXProject.h"

#include <QJsonObject>
#include <QString>

class IHBXFloor;

namespace orvcad {

/** What the recognition of beams is told of a floor. */
class BeamInput
{
public:
    /** Gathers it from the host; the floor becomes the current one. */
    BeamInput(hbx::embedded::HBXProject &project, const IHBXFloor &floor);

    /** The document. */
    const QJsonObject &document() const { return m_document; }
    /** "89 seats and 22 axis lines of Level 1: 40 columns, …". */
    QString text() const;
    QJsonObject summary() const { return m_summary; }

private:
    QJsonObject m_document;
    QJsonObject m_summary;
};

} // namespace orvcad

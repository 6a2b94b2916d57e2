#pragma once

#include <QJsonObject>
#include <QString>

class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** A selection of parts as --parts tells it: 2 supports, 4 slabs and holes, 8 bars of slabs, 32 rafts, 64 bars of rafts, 128
 *  axis grids, and their sums. Supports and axis grids come together. The numbers 1 and 16 stand for nothing. */
class SlabParts
{
public:
    /** Everything, or by number. Throws CommandFailure (wrong usage) for a number that names no part. */
    explicit SlabParts(int number = kEverything);

    static constexpr int kEverything = 126;

    /** True for all parts but axis grids, told or not: 126 and 127. Only then the elements carry the ids of the host. */
    bool isEverything() const;
    bool has(int part) const { return (m_number & part) != 0; }

private:
    int m_number;
};

/** The model document of a floor. */
QJsonObject slabDocument(const hbx::embedded::HBXProject &project, const IHBXFloor &floor, const SlabParts &parts);
/** The IO document of a floor with a drawing file (.cadi2, or packed as .wzd) in it. Throws CommandFailure when the file
 *  is no drawing. */
QJsonObject slabIoDocument(const hbx::embedded::HBXProject &project, const IHBXFloor &floor,
                           const QString &drawingPath);

} // namespace orvcad

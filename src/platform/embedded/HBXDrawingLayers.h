#pragma once

#include "ORVCADPlatformExport.h"

#include <QMap>
#include <QString>

class IHBXModel;

namespace hbx {
struct ElementTypeInfo;
}

namespace hbx::embedded {

/** Which layers of a drawing the lines and texts of an element type stand on. */
class ORVCADPLATFORM_EXPORT HBXDrawingLayers
{
public:
    struct Names
    {
        QString lines;
        QString texts;
    };

    /** Takes the layer names that the project keeps in its options, by label; null keeps none. */
    explicit HBXDrawingLayers(IHBXModel *model);

    /** The layer manager's title where it has one for the type, else the type's own name; for texts with "标注" behind
     *  it. */
    Names namesOf(const ElementTypeInfo &type) const;
    /** The name that the project keeps for a title, else the title itself. */
    QString storedName(const QString &label) const;

    /** Index, 1 to 9, of the drawing colour nearest to 0xRRGGBB. */
    static int colorIndexOf(int rgb);

private:
    QMap<QString, QString> m_storedNames;
};

} // namespace hbx::embedded

#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

#include <map>
#include <string>
#include <vector>

/** One hoop picture of the host's catalogue. */
struct ORVCADColumnHoopBarPicInfo
{
    qint64 barPicID = 0; ///< of the picture in the host
    int limbCount = 0;   ///< limbs that it shows
    QString hoopBarName; ///< of the picture
};

/** One limb pattern with the pictures of its two sides. */
struct ORVCADColumnHoopBarSetting
{
    qint64 hoopBarSettingID = 0; ///< of the pattern in the host
    qint64 hoopBarBPicID = 0;    ///< picture of the B side
    qint64 hoopBarHPicID = 0;    ///< picture of the H side
    int hLimbCount = 0;          ///< limbs on the H side
    int bLimbCount = 0;          ///< limbs on the B side
};

/** The host's limb patterns and its catalogue of hoop pictures, carried to the column service. Turns a limb text, such as
 *  "4*6" for 4 limbs on the B side and 6 on the H side, into the pictures of the two sides.
 *  Schema: schemas/columns.schema.json.
 *
 *  The par owns the pictures and patterns that it was given and deletes them; a copy has pictures and patterns of its
 *  own. */
class ORVCADMODELDATA_EXPORT ORVCADColumnHoopBarSettingPar
{
public:
    ORVCADColumnHoopBarSettingPar() = default;
    ~ORVCADColumnHoopBarSettingPar();
    /** Copies pictures and patterns. */
    ORVCADColumnHoopBarSettingPar(const ORVCADColumnHoopBarSettingPar &other);
    /** Leaves the other one empty. */
    ORVCADColumnHoopBarSettingPar(ORVCADColumnHoopBarSettingPar &&other) noexcept;
    /** Deletes the pictures and patterns that were there. */
    ORVCADColumnHoopBarSettingPar &operator=(ORVCADColumnHoopBarSettingPar other) noexcept;

    /** Takes over a picture made with `new`. An id that is there already keeps its picture: the debug log gets "add map
     *  failed!", and the new picture stays the caller's. Null is ignored. */
    void addHoopBarPicInfo(qint64 id, ORVCADColumnHoopBarPicInfo *picture);
    /** Appends a pattern made with `new` and takes it over; null is ignored. */
    void addHoopBarSetting(ORVCADColumnHoopBarSetting *setting);

    /** The pictures of a limb text. The first pattern whose text is exactly this one gives both. Where there is none, the
     *  catalogue gives the picture of each number of limbs, that of the lowest id where several have it; white space
     *  around the numbers is allowed then.
     *  @return false for a text that is not two whole numbers with one "*" between them, which leaves the outputs alone,
     *          and when a number of limbs has no picture, which sets its output to -1 and the other one all the same */
    bool parseColumnCombLimbInfo(const std::wstring &limbs, qint64 &bPicture, qint64 &hPicture) const;

    /** Pictures in the order of their ids, patterns in the order in which they were added. */
    QJsonObject toJson() const;
    /** Adds what the object holds, unlike the other column records to this object itself. Never fails: what is missing or
     *  mistyped is 0 or empty. A picture whose id is there already is left out without a word. Ids are written whole and
     *  read as 32-bit numbers: one that does not fit there is 0. */
    void fromJson(const QJsonObject &json);

private:
    ORVCADColumnHoopBarSetting *findHoopBarSetting(const std::wstring &limbs) const;
    /** -1 for a number of limbs without a picture. */
    qint64 getPicIDByLimbCount(int limbCount) const;

    std::map<qint64, ORVCADColumnHoopBarPicInfo *> m_pictures; // none is null, nor is one below
    std::vector<ORVCADColumnHoopBarSetting *> m_settings;
};

#include "column/ORVCADColumnHoopBarSettingPar.h"

#include "column/ColumnInputFields.h"

#include <QStringList>

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

using namespace column;

namespace {

constexpr qint64 kNoPicture = -1;
constexpr QChar kBetweenLimbs = u'*';

std::wstring limbText(int bLimbs, int hLimbs)
{
    return (QString::number(bLimbs) + kBetweenLimbs + QString::number(hLimbs)).toStdWString();
}

/** The limbs of both sides; false when the text is no pair of whole numbers. */
bool readLimbs(const std::wstring &text, int &bLimbs, int &hLimbs)
{
    const QStringList parts = QString::fromStdWString(text).trimmed().split(kBetweenLimbs);
    if (parts.size() != 2)
        return false;
    bool bIsNumber = false;
    bool hIsNumber = false;
    bLimbs = parts[0].toInt(&bIsNumber);
    hLimbs = parts[1].toInt(&hIsNumber);
    return bIsNumber && hIsNumber;
}

} // namespace

ORVCADColumnHoopBarSettingPar::~ORVCADColumnHoopBarSettingPar()
{
    // One picture may have been added under several ids, and one pattern several times.
    std::set<ORVCADColumnHoopBarPicInfo *> pictures;
    for (const auto &entry : m_pictures)
        pictures.insert(entry.second);
    qDeleteAll(pictures);
    qDeleteAll(std::set<ORVCADColumnHoopBarSetting *>(m_settings.begin(), m_settings.end()));
}

ORVCADColumnHoopBarSettingPar::ORVCADColumnHoopBarSettingPar(const ORVCADColumnHoopBarSettingPar &other)
{
    for (const auto &entry : other.m_pictures)
        addHoopBarPicInfo(entry.first, new ORVCADColumnHoopBarPicInfo(*entry.second));
    for (const ORVCADColumnHoopBarSetting *setting : other.m_settings)
        addHoopBarSetting(new ORVCADColumnHoopBarSetting(*setting));
}

ORVCADColumnHoopBarSettingPar::ORVCADColumnHoopBarSettingPar(ORVCADColumnHoopBarSettingPar &&other) noexcept
    : m_pictures(std::exchange(other.m_pictures, {})), m_settings(std::exchange(other.m_settings, {}))
{}

ORVCADColumnHoopBarSettingPar &ORVCADColumnHoopBarSettingPar::operator=(ORVCADColumnHoopBarSettingPar other) noexcept
{
    m_pictures.swap(other.m_pictures);
    m_settings.swap(other.m_settings);
    return *this;
}

void ORVCADColumnHoopBarSettingPar::addHoopBarPicInfo(qint64 id, ORVCADColumnHoopBarPicInfo *picture)
{
    if (picture && !m_pictures.emplace(id, picture).second)
        qDebug("add map failed!");
}

void ORVCADColumnHoopBarSettingPar::addHoopBarSetting(ORVCADColumnHoopBarSetting *setting)
{
    if (setting)
        m_settings.push_back(setting);
}

bool ORVCADColumnHoopBarSettingPar::parseColumnCombLimbInfo(const std::wstring &limbs, qint64 &bPicture,
                                                            qint64 &hPicture) const
{
    if (const ORVCADColumnHoopBarSetting *setting = findHoopBarSetting(limbs)) {
        bPicture = setting->hoopBarBPicID;
        hPicture = setting->hoopBarHPicID;
        return true;
    }
    int bLimbs = 0;
    int hLimbs = 0;
    if (!readLimbs(limbs, bLimbs, hLimbs))
        return false;
    bPicture = getPicIDByLimbCount(bLimbs);
    hPicture = getPicIDByLimbCount(hLimbs);
    return bPicture != kNoPicture && hPicture != kNoPicture;
}

ORVCADColumnHoopBarSetting *ORVCADColumnHoopBarSettingPar::findHoopBarSetting(const std::wstring &limbs) const
{
    int b = 0;
    int h = 0;
    if (!readLimbs(limbs, b, h) || limbText(b, h) != limbs) // meant: not even a blank more
        return nullptr;
    const auto found = std::find_if(m_settings.begin(), m_settings.end(), [=](const auto *setting) {
        return setting->bLimbCount == b && setting->hLimbCount == h;
    });
    return found == m_settings.end() ? nullptr : *found;
}

qint64 ORVCADColumnHoopBarSettingPar::getPicIDByLimbCount(int limbCount) const
{
    const auto found = std::find_if(m_pictures.begin(), m_pictures.end(),
                                    [=](const auto &entry) { return entry.second->limbCount == limbCount; });
    return found == m_pictures.end() ? kNoPicture : found->second->barPicID;
}

QJsonObject ORVCADColumnHoopBarSettingPar::toJson() const
{
    HoopBarLists lists;
    for (const auto &entry : m_pictures)
        lists.pictures.push_back({*entry.second, entry.first});
    for (const ORVCADColumnHoopBarSetting *setting : m_settings)
        lists.settings.push_back(*setting);
    return encoding::writtenFields(lists, HoopBarFields::table);
}

void ORVCADColumnHoopBarSettingPar::fromJson(const QJsonObject &json)
{
    const auto lists = encoding::readRecord<HoopBarLists>(json, HoopBarFields::table);
    for (const HoopPicture &picture : lists.pictures)
        if (m_pictures.count(picture.id) == 0) // meant: no message here, unlike addHoopBarPicInfo
            m_pictures.emplace(picture.id, new ORVCADColumnHoopBarPicInfo(picture));
    for (const ORVCADColumnHoopBarSetting &setting : lists.settings)
        addHoopBarSetting(new ORVCADColumnHoopBarSetting(setting));
}

#include "platform/services/dwgxCommonUtil.h"

#include "platform/services/HBXElementTypeTable.h"

#include <QHash>

#include <algorithm>

namespace {

/** What the table says of a type, as texts that are made once: drawing sets ask for them by the thousand. */
struct TypeTexts
{
    QPair<QString, QString> names;
    QStringList layerWords;
    int colour = 0;
};

using TextsByType = QHash<int, TypeTexts>;
using TypesByName = QHash<QString, int>;

const TextsByType &textsByType()
{
    static const TextsByType texts = [] {
        TextsByType all;
        for (const hbx::ElementTypeInfo &info : hbx::kElementTypes)
            all.insert(static_cast<int>(info.number), {{info.key(), info.name()}, info.words(), info.colour});
        return all;
    }();
    return texts;
}

const TypesByName &typesByName()
{
    static const TypesByName types = [] {
        TypesByName all;
        for (const hbx::ElementTypeInfo &info : hbx::kElementTypes)
            all.insert(info.name(), static_cast<int>(info.number));
        return all;
    }();
    return types;
}

} // namespace

QPair<QString, QString> dwgxCommonUtil::getElementTypeName(int type) { return textsByType().value(type).names; }

int dwgxCommonUtil::getElementTypeByName(const QString &name) { return typesByName().value(name, -1); }

QPair<QString, int> getCADLayerInfo(int type, const QString &layerName)
{
    const TypeTexts texts = textsByType().value(type);
    const bool isOfType = std::any_of(texts.layerWords.begin(), texts.layerWords.end(), [&](const QString &word) {
        return layerName.contains(word, Qt::CaseInsensitive);
    });
    return isOfType ? qMakePair(layerName, texts.colour) : QPair<QString, int>();
}

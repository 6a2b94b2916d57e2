#pragma once

#include "IdentifyInputModel/Wall/ORVCADInputModelSerialization.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"
#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

inline vks::CRefPtr<vks::CCurve2d> line(double x1, double y1, double x2, double y2)
{
    return new vks::CLine2d(vks::CVec2<double>(x1, y1), vks::CVec2<double>(x2, y2));
}

/** A square of 400 mm with its lower left corner at the origin: "0,0;400,0;400,400;0,400;". */
inline vks::CRefPtr<vks::CPolygon> square() { return shapes::rectangle(0, 0, 400, 400); }

inline QByteArray compact(const QJsonObject &json) { return QJsonDocument(json).toJson(QJsonDocument::Compact); }

inline QJsonObject objectOf(const std::wstring &text)
{
    return QJsonDocument::fromJson(QString::fromStdWString(text).toUtf8()).object();
}

/** An archive for writing, and the road from a text back to what a translator makes of it. */
template <typename Translator> class ArchiveTest : public testing::Test
{
protected:
    /** Member of the written document. */
    QByteArray member(const char *key) const
    {
        const QJsonValue value = json.rootObject().value(QLatin1String(key));
        return QJsonDocument::fromVariant(value.toVariant()).toJson(QJsonDocument::Compact);
    }
    /** What save puts into an XML document, without declaration and root. */
    template <typename Save> QString xml(Save &&save)
    {
        ORVCADXmlFileSerialization archive{QString()};
        Translator records(&archive);
        save(records);
        archive.save(QString());
        const QString text = archive.content();
        const int start = static_cast<int>(text.indexOf(QLatin1String("<XmlRoot>\n"))) + 10;
        return text.mid(start, text.indexOf(QLatin1String("</XmlRoot>")) - start);
    }
    /** Calls load over the JSON text. */
    template <typename Load> void load(const char *text, Load &&load)
    {
        ORVCADJsonFileSerialization archive(QString::fromUtf8(text));
        ASSERT_TRUE(archive.parse()) << text;
        Translator records(&archive);
        load(records);
    }

    ORVCADJsonFileSerialization json{QString()};
    Translator translator{&json};
};

#pragma once

#include <gtest/gtest.h>

#include <QDomDocument>
#include <QRegularExpression>
#include <QStringList>

/** An SVG page, parsed, which has to be well-formed. */
class Picture
{
public:
    explicit Picture(const QByteArray &svg)
    {
        QString message;
        EXPECT_TRUE(m_document.setContent(svg, &message)) << message.toStdString();
    }

    QDomElement root() const { return m_document.documentElement(); }
    /** The group of a class; null when there is none. */
    QDomElement group(const QString &cssClass) const
    {
        const QDomNodeList groups = root().elementsByTagName("g");
        for (int i = 0; i < groups.size(); ++i)
            if (groups.at(i).toElement().attribute("class") == cssClass)
                return groups.at(i).toElement();
        return {};
    }
    QDomElement groupOfType(int type) const { return group(QStringLiteral("type-%1").arg(type)); }

    static QStringList texts(const QDomElement &element)
    {
        QStringList texts;
        const QDomNodeList nodes = element.elementsByTagName("text");
        for (int i = 0; i < nodes.size(); ++i)
            texts.append(nodes.at(i).toElement().text());
        return texts;
    }
    /** Paths of a class; those of placed objects have none, but the panes of windows, the crosses of holes and bars do. */
    static int pathCount(const QDomElement &element, const QString &cssClass = QString())
    {
        const QDomNodeList paths = element.elementsByTagName("path");
        int count = 0;
        for (int i = 0; i < paths.size(); ++i)
            count += paths.at(i).toElement().attribute("class") == cssClass ? 1 : 0;
        return count;
    }
    /** The points of the lines of the first path of an element, sorted. */
    static std::string corners(const QDomElement &element)
    {
        const QString data = element.firstChildElement("path").attribute("d");
        QStringList points;
        QRegularExpressionMatchIterator match = QRegularExpression("[ML]([-\\d.]+ [-\\d.]+)").globalMatch(data);
        while (match.hasNext())
            points.append(match.next().captured(1));
        points.removeDuplicates();
        points.sort();
        return points.join(", ").toStdString();
    }

private:
    QDomDocument m_document;
};

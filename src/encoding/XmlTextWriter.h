#pragma once

#include "ORVCADModelDataExport.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringView>

#include <utility>
#include <vector>

class QTextCodec;

namespace encoding {

/** Text of XML elements with attributes and nothing else in them, as QDomDocument::toString(1) writes it, except that
 *  attributes stand in the order in which they were set: QDomDocument has another order in each process.
 *
 *  Names go out as they are, legal or not. In values < & " and white space other than a blank are escaped, > only
 *  behind "]]", and a character that the declared encoding lacks becomes a character reference. */
class ORVCADMODELDATA_EXPORT XmlTextWriter
{
public:
    /** @param encoding  as the document declares it; an unknown one counts as UTF-8
     *  @param level     of the elements written first: how many elements stand around them */
    explicit XmlTextWriter(const QByteArray &encoding, int level = 0);

    /** Opens an element inside the one that is open. The name must live until endElement. */
    void startElement(QStringView name);
    /** Sets an attribute of the element opened last, before another is opened or closed. One that is set already keeps
     *  its place and gets the new value; without a name nothing is set. Name and value must live until then. */
    void attribute(QStringView name, QStringView value);
    /** Closes the element opened last. */
    void endElement();

    /** Everything written; whole elements when all are closed. */
    const QString &text() const { return m_text; }

private:
    using Attribute = std::pair<QStringView, QStringView>;

    void indent(int level);
    void finishStart(bool hasChildren);
    Attribute *find(QStringView name);
    void appendValue(QStringView value);
    void appendReference(QChar character);
    bool isEncodable(QChar character);

    QTextCodec *m_codec; // Qt's own, never null
    int m_level;
    QString m_text;
    std::vector<QStringView> m_open;
    std::vector<Attribute> m_attributes;          // of the element whose start is not finished
    QHash<QStringView, std::size_t> m_manyPlaces; // where they stand, once there are many
    bool m_inStart = false;
    QHash<ushort, bool> m_encodable; // what the codec said: asking it is slow
};

} // namespace encoding

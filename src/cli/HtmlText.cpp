#include "cli/HtmlText.h"

#include <QCryptographicHash>
#include <QJsonDocument>

namespace orvcad {

QByteArray htmlText(const QString &text) { return text.toHtmlEscaped().toUtf8(); }

QByteArray scriptJson(const QJsonObject &json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact).replace('<', "\\u003c");
}

QByteArray contentHash(const QByteArray &content)
{
    return "'sha256-" + QCryptographicHash::hash(content, QCryptographicHash::Sha256).toBase64() + '\'';
}

QByteArray filled(const QByteArray &page, const QMap<QByteArray, QByteArray> &values)
{
    QByteArray result;
    int done = 0;
    for (int open = page.indexOf("{{"); open >= 0; open = page.indexOf("{{", open + 2)) {
        const int close = page.indexOf("}}", open);
        const auto value = values.find(page.mid(open + 2, close - open - 2));
        if (close < 0 || value == values.end())
            continue;
        result += page.mid(done, open - done) + *value;
        done = close + 2;
    }
    return result + page.mid(done);
}

} // namespace orvcad

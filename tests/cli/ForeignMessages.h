#pragma once

#include <QCoreApplication>
#include <QTranslator>

/** While it lives, messages are in another language: each begins with a Chinese character. */
class ForeignMessages : public QTranslator
{
public:
    ForeignMessages() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char * /*context*/, const char *english, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        return QStringLiteral("文") + QString::fromUtf8(english);
    }
};

#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include <cstring>

/** While it lives, messages are in a language of their own, in which they stand in brackets: "<Wrote 2 doors>". */
class ForeignLanguage : public QTranslator
{
public:
    ForeignLanguage() { QCoreApplication::installTranslator(this); }

    QString translate(const char *context, const char *english, const char * /*disambiguation*/,
                      int /*number*/) const override
    {
        return std::strcmp(context, "orvcad") == 0 ? '<' + QString::fromUtf8(english) + '>' : QString();
    }
    bool isEmpty() const override { return false; }
};

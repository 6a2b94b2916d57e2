#pragma once

#include <QTextCodec>

/** Sets the local 8-bit encoding for as long as it lives. */
class LocaleCodec
{
public:
    explicit LocaleCodec(const char *name) : m_before(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocaleCodec() { QTextCodec::setCodecForLocale(m_before); }
    LocaleCodec(const LocaleCodec &) = delete;
    LocaleCodec &operator=(const LocaleCodec &) = delete;

private:
    QTextCodec *m_before;
};

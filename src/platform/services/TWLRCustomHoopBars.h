#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

/** Hoop bars of a beam span beside the regular ones, in whatever way the host keeps them. */
class ORVCADPLATFORM_EXPORT IWLRCustomHoopBars
{
public:
    virtual ~IWLRCustomHoopBars();
};

/** Those that are kept as one text. */
class ORVCADPLATFORM_EXPORT TWLRCustomHoopBars : public IWLRCustomHoopBars
{
public:
    /** Any text is taken, as it is. */
    explicit TWLRCustomHoopBars(const QString &text) : m_text(text) {}
    ~TWLRCustomHoopBars() override;

    /** The same text. */
    QString getAsString() const { return m_text; }

private:
    QString m_text;
};

#pragma once

#include "preview/PdfConverter.h"

#include <QString>
#include <QStringList>

namespace kartella::test {

// A PDF of pages A4 pages, each with a black block and its number, made by QPdfWriter.
void writePdf(const QString& path, int pages);
// The bytes as they are.
void writeBytes(const QString& path, const QByteArray& bytes);

// Converts nothing: records what it was asked and finishes when the test says.
class ScriptedConverter final : public PdfConverter
{
    Q_OBJECT

public:
    void convert(const QString& source) override
    {
        m_source = source;
        started << source;
    }
    void abandon() override
    {
        if (!m_source.isEmpty())
            abandoned << m_source;
        m_source.clear();
    }
    bool isRunning() const override { return !m_source.isEmpty(); }

    // Ends the conversion running (or, with source, one abandoned before) with the PDF.
    void finish(const QString& pdf, const QString& source = {})
    {
        const QString ended = source.isEmpty() ? m_source : source;
        if (source.isEmpty())
            m_source.clear();
        Q_EMIT finished(ended, pdf, {});
    }

    QStringList started;
    QStringList abandoned;

private:
    QString m_source;
};

} // namespace kartella::test

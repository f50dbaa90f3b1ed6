// RTF: the text of a document, its control words taken out.
#include "content/FileText.h"
#include "content/MarkupText.h"
#include "content/TextDecoding.h"

#include <QFile>
#include <QStringDecoder>

#include <vector>

namespace kartella {

namespace {

// Destinations whose text is not the document's (tables of fonts and colours, styles,
// pictures, document information, fields' instructions).
bool hiddenDestination(const QByteArray& word)
{
    static const QList<QByteArray> hidden = {"fonttbl", "colortbl", "stylesheet", "info", "pict", "object",
        "fldinst", "themedata", "colorschememapping", "latentstyles", "datastore", "xmlnstbl", "listtable",
        "listoverridetable", "rsidtbl", "generator", "header", "footer", "headerl", "headerr", "footerl",
        "footerr", "filetbl", "revtbl"};
    return hidden.contains(word);
}

struct Group
{
    bool hidden = false;
    int skipAfterUnicode = 1; // \ucN: characters that stand in for a \uN for older readers
};

class RtfParser
{
public:
    explicit RtfParser(const QByteArray& rtf)
        : m_rtf(rtf)
        , m_decoder("windows-1252")
    { }

    QString text()
    {
        m_groups.push_back({});
        while (m_at < m_rtf.size()) {
            const char c = m_rtf.at(m_at);
            if (c == '{') {
                flushBytes();
                m_groups.push_back(m_groups.back());
                ++m_at;
            } else if (c == '}') {
                flushBytes();
                if (m_groups.size() > 1)
                    m_groups.pop_back();
                ++m_at;
            } else if (c == '\\') {
                controlWord();
            } else if (c == '\r' || c == '\n') {
                ++m_at;
            } else {
                addByte(c);
                ++m_at;
            }
        }
        flushBytes();
        return m_out;
    }

private:
    bool hidden() const { return m_groups.back().hidden; }

    void addByte(char byte)
    {
        if (!hidden())
            m_bytes += byte;
    }

    void addText(const QString& text)
    {
        flushBytes();
        if (!hidden())
            m_out += text;
    }

    // Bytes of the code page wait until a whole run of them is there: a character of a
    // double-byte code page comes as two \'xx.
    void flushBytes()
    {
        if (m_bytes.isEmpty())
            return;
        m_out += m_decoder.decode(m_bytes);
        m_bytes.clear();
    }

    void controlWord()
    {
        ++m_at; // the backslash
        if (m_at >= m_rtf.size())
            return;
        const char c = m_rtf.at(m_at);
        if (c == '\'') {
            bool ok = false;
            const char byte = char(m_rtf.mid(m_at + 1, 2).toUInt(&ok, 16));
            m_at += 3;
            if (ok)
                addByte(byte);
            return;
        }
        if (c == '*') {
            // {\* ...}: a destination older readers skip, and so do we.
            m_groups.back().hidden = true;
            ++m_at;
            return;
        }
        if (!std::isalpha(static_cast<unsigned char>(c))) {
            ++m_at;
            if (c == '\\' || c == '{' || c == '}')
                addByte(c);
            else if (c == '~')
                addText(QStringLiteral(" "));
            else if (c == '\n' || c == '\r')
                addText(QStringLiteral("\n"));
            return;
        }
        const qsizetype start = m_at;
        while (m_at < m_rtf.size() && std::isalpha(static_cast<unsigned char>(m_rtf.at(m_at))))
            ++m_at;
        const QByteArray word = m_rtf.mid(start, m_at - start);
        const qsizetype numberStart = m_at;
        if (m_at < m_rtf.size() && m_rtf.at(m_at) == '-')
            ++m_at;
        while (m_at < m_rtf.size() && std::isdigit(static_cast<unsigned char>(m_rtf.at(m_at))))
            ++m_at;
        const QByteArray numberText = m_rtf.mid(numberStart, m_at - numberStart);
        const bool hasNumber = !numberText.isEmpty() && numberText != "-";
        const int number = hasNumber ? numberText.toInt() : 0;
        if (m_at < m_rtf.size() && m_rtf.at(m_at) == ' ')
            ++m_at;
        applyWord(word, hasNumber, number);
    }

    void applyWord(const QByteArray& word, bool hasNumber, int number)
    {
        if (word == "par" || word == "line" || word == "row" || word == "sect" || word == "page")
            addText(QStringLiteral("\n"));
        else if (word == "tab" || word == "cell")
            addText(QStringLiteral("\t"));
        else if (word == "ansicpg" && hasNumber) {
            flushBytes();
            const QByteArray name = "windows-" + QByteArray::number(number);
            if (knownEncoding(name))
                m_decoder = QStringDecoder(name.constData());
        } else if (word == "uc" && hasNumber)
            m_groups.back().skipAfterUnicode = number;
        else if (word == "u" && hasNumber) {
            const char32_t code = char32_t(number < 0 ? number + 65536 : number);
            addText(QString::fromUcs4(&code, 1));
            skipStandIns();
        } else if (hiddenDestination(word))
            m_groups.back().hidden = true;
    }

    // The characters after \uN that stand in for it: each a byte or one \'xx.
    void skipStandIns()
    {
        for (int i = 0; i < m_groups.back().skipAfterUnicode && m_at < m_rtf.size(); ++i) {
            const char c = m_rtf.at(m_at);
            if (c == '{' || c == '}')
                return;
            if (c == '\\' && m_at + 1 < m_rtf.size() && m_rtf.at(m_at + 1) == '\'')
                m_at += 4;
            else
                ++m_at;
        }
    }

    const QByteArray& m_rtf;
    qsizetype m_at = 0;
    std::vector<Group> m_groups;
    QStringDecoder m_decoder;
    QByteArray m_bytes;
    QString m_out;
};

} // namespace

QString rtfToText(const QByteArray& rtf)
{
    return RtfParser(rtf).text();
}

FileText readRtfText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileText::failed(file.errorString());
    const QByteArray bytes = file.readAll();
    if (!bytes.startsWith("{\\rtf"))
        return FileText::failed(TextReason::Damaged);
    return FileText::read(rtfToText(bytes).trimmed());
}

} // namespace kartella

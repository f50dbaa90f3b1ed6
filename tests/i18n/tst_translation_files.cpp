// The translation files against the sources: lupdate finds every text the sources mark for
// translation, and each has a finished translation that keeps its placeholders and access key.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    QString type; // "unfinished", "vanished", "obsolete" or empty
};

// The messages of a .ts file. A file the reader stops in fails the test: the messages after
// the fault would go unchecked. A control character stands in a text as a <byte> element.
QList<Message> readTs(const QString& path, QString& error)
{
    QList<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = path + QStringLiteral(": ") + file.errorString();
        return messages;
    }
    QXmlStreamReader xml(&file);
    QString context;
    Message message;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == u"name")
            context = xml.readElementText();
        else if (xml.name() == u"message")
            message = Message {context, {}, {}, {}};
        else if (xml.name() == u"source")
            message.source = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        else if (xml.name() == u"translation") {
            message.type = xml.attributes().value(QStringLiteral("type")).toString();
            message.translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            messages << message;
        }
    }
    if (xml.hasError())
        error = QStringLiteral("%1, line %2: %3").arg(path).arg(xml.lineNumber()).arg(xml.errorString());
    return messages;
}

// The placeholders of a text, sorted: "%1", "%2", "%L1", "%n".
QStringList placeholders(const QString& text)
{
    static const QRegularExpression placeholder(QStringLiteral("%L?(\\d+|n)"));
    QStringList found;
    for (const QRegularExpressionMatch& match : placeholder.globalMatch(text))
        found << match.captured();
    found.sort();
    return found;
}

// How many access keys a text marks ("&File" one, "R&&D" none).
int accessKeys(const QString& text)
{
    int count = 0;
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != u'&')
            continue;
        if (text.at(i + 1) == u'&')
            ++i;
        else if (!text.at(i + 1).isSpace())
            ++count;
    }
    return count;
}

QString describe(const Message& message)
{
    return QStringLiteral("%1: \"%2\" -> \"%3\"").arg(message.context, message.source, message.translation);
}

QStringList translationFiles()
{
    const QDir folder(QStringLiteral(KARTELLA_SOURCE_DIR "/share/translations"));
    QStringList files;
    for (const QString& name : folder.entryList({QStringLiteral("kartella_*.ts")}, QDir::Files))
        files << folder.filePath(name);
    return files;
}

} // namespace

class TranslationFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // lupdate over the sources, into a copy of each language's main file: a text marked in
    // the sources and missing from the file comes out unfinished.
    void everyMarkedTextIsTranslated()
    {
        QTemporaryDir work;
        QVERIFY(work.isValid());
        const QDir sources(QStringLiteral(KARTELLA_SOURCE_DIR));
        static const QRegularExpression mainFile(QStringLiteral("kartella_[a-z]{2}(_[A-Z]{2})?\\.ts$"));
        int checked = 0;
        for (const QString& file : translationFiles()) {
            if (!mainFile.match(file).hasMatch())
                continue;
            const QString copy = work.filePath(QFileInfo(file).fileName());
            QVERIFY(QFile::copy(file, copy));
            QProcess lupdate;
            lupdate.setProcessChannelMode(QProcess::MergedChannels);
            lupdate.start(QStringLiteral(KARTELLA_LUPDATE),
                {QStringLiteral("-locations"), QStringLiteral("none"), QStringLiteral("-no-obsolete"),
                    QStringLiteral("-silent"), QStringLiteral("-I"), sources.filePath(QStringLiteral("src")),
                    sources.filePath(QStringLiteral("src")), sources.filePath(QStringLiteral("tools")),
                    QStringLiteral("-ts"), copy});
            QVERIFY2(lupdate.waitForFinished(120000), "lupdate did not finish");
            QVERIFY2(lupdate.exitCode() == 0, lupdate.readAll().constData());
            QStringList missing;
            QString error;
            const QList<Message> messages = readTs(copy, error);
            QVERIFY2(error.isEmpty(), qPrintable(error));
            for (const Message& message : messages) {
                if (message.type == u"unfinished" || message.translation.isEmpty())
                    missing << describe(message);
            }
            QVERIFY2(missing.isEmpty(),
                qPrintable(QStringLiteral("%1 texts without a translation in %2 (update_translations "
                                          "brings them in), e.g.:\n")
                               .arg(missing.size())
                               .arg(QFileInfo(file).fileName())
                    + missing.mid(0, 25).join(u'\n')));
            ++checked;
        }
        QVERIFY(checked > 0);
    }

    // Every translation keeps what the program fills in (%1) and the access key its source has.
    void translationsKeepPlaceholdersAndAccessKeys()
    {
        QStringList wrong;
        int messages = 0;
        for (const QString& file : translationFiles()) {
            QString error;
            const QList<Message> read = readTs(file, error);
            QVERIFY2(error.isEmpty(), qPrintable(error));
            for (const Message& message : read) {
                if (message.type == u"vanished" || message.type == u"obsolete")
                    continue;
                ++messages;
                if (placeholders(message.source) != placeholders(message.translation))
                    wrong << QStringLiteral("placeholders differ: ") + describe(message);
                if (accessKeys(message.source) != accessKeys(message.translation))
                    wrong << QStringLiteral("access keys differ: ") + describe(message);
            }
        }
        QVERIFY(messages > 0);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(TranslationFilesTest)
#include "tst_translation_files.moc"

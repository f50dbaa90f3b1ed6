#include "base/Error.h"
#include "harness/ScriptedPrompter.h"
#include "platform/Application.h"

#include <QTest>

#include <stdexcept>

using namespace kartella;

namespace {
// An object whose event handler fails the way a command may fail.
class Failing : public QObject
{
public:
    bool standard = false;
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        if (standard)
            throw std::runtime_error("disk full");
        throw Error(ErrorNumber::CommandFailed, QStringLiteral("The register refused the row."));
    }
};
} // namespace

class ApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEscapedErrorIsShownAndTheProgramGoesOn()
    {
        test::ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok).answer(MsgBoxResult::Ok);
        Failing object;
        QCoreApplication::postEvent(&object, new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        object.standard = true;
        QCoreApplication::postEvent(&object, new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        QCOMPARE(prompter.texts(), QStringList({"The register refused the row.", "disk full"}));
        QCOMPARE(prompter.prompts().first().title, QString("Kartella"));
        QCOMPARE(prompter.prompts().first().style, MsgBoxStyle::OkOnly);
    }
};

int main(int argc, char* argv[])
{
    Application app(argc, argv);
    ApplicationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_application.moc"

#include "ExplorerDesktop/MainWindow.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace aec::desktop
{

// Runs the program itself as a user would to get a picture of its window, without a display.
class DesktopScreenshotTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theProgramPaintsItsWindowIntoAPictureAfterItsScript()
    {
        QTemporaryDir directory;
        QVERIFY(directory.isValid());
        const QString script =
            writeScript(directory, "toggle Sheets\nselect \"Cover sheet\"\ngroup Tables Topic\n");
        const QString picture = directory.filePath("window.png");
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(EXPLORER_DESKTOP, {"--seed", "3", "--script", script, "--screenshot", picture});
        QVERIFY2(program.waitForFinished(120000), "the program did not end");
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QVERIFY2(QString::fromUtf8(program.readAllStandardOutput()).contains("Cover sheet"),
                 "the script's commands print what they did");

        QImage image;
        QVERIFY2(image.load(picture, "PNG"), "the picture does not load as a PNG");
        QCOMPARE(image.size(), CMainWindow::initialSize);
        // Text, icons, frames and a selection colour: a blank or one-colour window has a handful.
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); y += 2)
            for (int x = 0; x < image.width(); x += 2)
                colours.insert(image.pixel(x, y));
        QVERIFY2(colours.size() > 16, qPrintable(QString("only %1 colours").arg(colours.size())));
    }

    void aFailingScriptEndsTheProgramBeforeTheWindow()
    {
        QTemporaryDir directory;
        QVERIFY(directory.isValid());
        const QString script = writeScript(directory, "toggle Sheets\ntoggle Nowhere\ntoggle Tables\n");
        const QString picture = directory.filePath("window.png");
        QProcess program;
        program.start(EXPLORER_DESKTOP, {"--script", script, "--screenshot", picture});
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitCode(), 1);
        const QString out = QString::fromUtf8(program.readAllStandardOutput());
        QVERIFY2(out.contains("error:") && !out.contains("unfolded: Tables"), qPrintable(out));
        QVERIFY(QString::fromUtf8(program.readAllStandardError()).contains("line 2"));
        QVERIFY(!QFile::exists(picture));
    }

    void badArgumentsAreRefusedWithTheUsage()
    {
        QProcess program;
        program.start(EXPLORER_DESKTOP, {"--seed", "many"});
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitCode(), 2);
        const QString errors = QString::fromUtf8(program.readAllStandardError());
        QVERIFY2(errors.contains("--seed") && errors.contains("PROJECT.json"), qPrintable(errors));

        program.start(EXPLORER_DESKTOP,
                      {"/nonexistent/project.json", "--screenshot", "/nonexistent/window.png"});
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitCode(), 1);
        QVERIFY(QString::fromUtf8(program.readAllStandardError()).contains("/nonexistent/project.json"));
    }

private:
    static QString writeScript(const QTemporaryDir& directory, const char* commands)
    {
        const QString path = directory.filePath("script.txt");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(commands) < 0)
            qFatal("cannot write the script %s", qPrintable(path));
        return path;
    }
};

} // namespace aec::desktop

QTEST_MAIN(aec::desktop::DesktopScreenshotTest)
#include "DesktopScreenshotTest.moc"

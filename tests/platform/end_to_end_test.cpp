// Starts the real program on a virtual display of its own and drives it with
// synthetic key presses, as a user would.
#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

namespace {

// Runs xdotool on the display with the blank-separated arguments and returns
// its output; fails the test when it fails.
QString XDoTool(const QString& display, const QString& arguments) {
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display);
    tool.setProcessEnvironment(environment);
    tool.start(QStringLiteral("xdotool"), arguments.split(QLatin1Char(' ')));
    EXPECT_TRUE(tool.waitForFinished(20000)) << arguments.toStdString();
    EXPECT_EQ(tool.exitCode(), 0) << arguments.toStdString();
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

bool WaitFor(const std::function<bool()>& condition, int timeoutMs) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > timeoutMs) return false;
        QThread::msleep(50);
    }
    return true;
}

// A process that is stopped by its own id when the test ends.
struct OwnedProcess {
    QProcess process;
    ~OwnedProcess() {
        if (process.state() == QProcess::NotRunning) return;
        process.terminate();
        if (!process.waitForFinished(3000)) process.kill();
        process.waitForFinished(3000);
    }
};

TEST(EndToEnd, TypesAnExpressionSavesTheListAndExits) {
    if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty() ||
        QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty()) {
        GTEST_SKIP() << "Xvfb and xdotool are needed for the end-to-end test";
    }
    QTemporaryDir home;
    ASSERT_TRUE(QDir(home.path()).mkpath(QStringLiteral("run")));
    QFile::setPermissions(home.filePath(QStringLiteral("run")),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);

    OwnedProcess xvfb;  // -displayfd 1: the server picks a free display and names it on stdout
    xvfb.process.start(QStringLiteral("Xvfb"),
                       QStringLiteral("-displayfd 1 -screen 0 1280x1024x24 -nolisten tcp").split(QLatin1Char(' ')));
    ASSERT_TRUE(xvfb.process.waitForReadyRead(10000));
    const QString display = QLatin1Char(':') + QString::fromUtf8(xvfb.process.readLine()).trimmed();

    OwnedProcess app;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.filePath(QStringLiteral("run")));
    app.process.setProcessEnvironment(environment);
    app.process.start(QStringLiteral(TESSARONDEL_BINARY), {});
    ASSERT_TRUE(app.process.waitForStarted(10000));

    const QString window =
        XDoTool(display, QStringLiteral("search --sync --onlyvisible --name ^Tessarondel$")).section('\n', 0, 0);
    ASSERT_FALSE(window.isEmpty());
    XDoTool(display, QStringLiteral("windowfocus --sync ") + window);
    XDoTool(display, QStringLiteral("type --delay 20 2*(3+4)^2"));
    XDoTool(display, QStringLiteral("key Return ctrl+s"));
    XDoTool(display, QStringLiteral("search --sync --name ^Save.As$"));
    const QString exported = home.filePath(QStringLiteral("list.txt"));
    XDoTool(display, QStringLiteral("type --delay 10 ") + exported);
    XDoTool(display, QStringLiteral("key Return"));
    ASSERT_TRUE(WaitFor([&] { return QFile(exported).size() > 0; }, 10000));
    QFile list(exported);
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    EXPECT_EQ(list.readAll(), QByteArray("2*(3+4)^2\t98\r\n"));

    XDoTool(display, QStringLiteral("windowfocus --sync ") + window);
    XDoTool(display, QStringLiteral("key ctrl+q"));
    ASSERT_TRUE(app.process.waitForFinished(10000));
    EXPECT_EQ(app.process.exitCode(), 0);
    const QString settings = home.filePath(QStringLiteral("config/Tessarondel/Tessarondel.ini"));
    ASSERT_TRUE(QFile::exists(settings));
    EXPECT_EQ(QFile::permissions(settings) & (QFileDevice::ReadOther | QFileDevice::ReadGroup),
              QFileDevice::Permissions());
    QFile stored(settings);
    ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
    const QByteArray text = stored.readAll();
    EXPECT_TRUE(text.contains("EL=1") && text.contains("Remoteport=80")) << text.toStdString();
}

}  // namespace

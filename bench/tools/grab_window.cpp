// Saves an X window's picture as PNG: grab_window <window-id> <file.png>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 3) return 2;
    const WId window = QString::fromLatin1(argv[1]).toULongLong(nullptr, 0);
    const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(window);
    return !picture.isNull() && picture.save(QString::fromLocal8Bit(argv[2]), "PNG") ? 0 : 1;
}

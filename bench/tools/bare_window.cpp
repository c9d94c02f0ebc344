// The yardstick for the desktop program's start and memory: a bare Qt Widgets
// window with a few controls, titled "Bare Qt", and nothing else.
#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Bare Qt"));
    auto* layout = new QGridLayout(&window);
    layout->addWidget(new QLineEdit(&window), 0, 0, 1, 4);
    for (int i = 0; i < 12; ++i) layout->addWidget(new QPushButton(QString::number(i), &window), 1 + i / 4, i % 4);
    window.show();
    return QApplication::exec();
}

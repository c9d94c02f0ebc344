#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QToolButton>

#include "platform/widget_harness.h"

namespace tessarondel {
namespace {

using testing::MainWindowHarness;

// Where the style draws a button's caption.
QRect ContentsRect(QAbstractButton& button) {
    QStyle& style = *button.style();
    if (auto* push = qobject_cast<QPushButton*>(&button)) {
        QStyleOptionButton option;
        option.initFrom(push);
        return style.subElementRect(QStyle::SE_PushButtonContents, &option, push);
    }
    const int frame = style.pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &button);
    return button.rect().adjusted(frame, frame, -frame, -frame);
}

void ExpectCaptionsReadable(QWidget& window, const char* state) {
    SCOPED_TRACE(state);
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (!button->isVisibleTo(&window) || button->text().isEmpty()) continue;
        SCOPED_TRACE(button->text().toStdString());
        const QFontMetrics metrics(button->font());
        const QRect contents = ContentsRect(*button);
        EXPECT_LE(metrics.horizontalAdvance(button->text()), contents.width());
        EXPECT_LE(metrics.height(), contents.height());
        const QRect inWindow(button->mapTo(&window, QPoint(0, 0)), button->size());
        EXPECT_TRUE(window.rect().contains(inWindow));
    }
}

// CTest runs this at several QT_SCALE_FACTORs, and with the desktop font at
// the size TESSARONDEL_TEST_FONT_POINTS gives.
TEST(ReadableCaptions, EveryButtonShowsItsWholeCaption) {
    testing::WidgetApplication();
    if (const QByteArray points = qgetenv("TESSARONDEL_TEST_FONT_POINTS"); !points.isEmpty()) {
        QFont font = QApplication::font();
        font.setPointSizeF(points.toDouble());
        QApplication::setFont(font);
    }
    testing::ManagerHarness h;
    MainWindow& main = h.MainWindowHarness::window;
    main.show();
    h.window.show();
    ExpectCaptionsReadable(main, "with the Quick Reference");
    ExpectCaptionsReadable(h.window, "manager collapsed");
    h.model.ClickQuickReferenceButton(0);
    h.manager.cmdLedBtn(1);
    ExpectCaptionsReadable(main, "without the Quick Reference");
    ExpectCaptionsReadable(h.window, "manager expanded");
}

}  // namespace
}  // namespace tessarondel

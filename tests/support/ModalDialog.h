#pragma once

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <concepts>

namespace zerna {

/// Runs `open`, which returns when its modal dialog is closed, and what the user does in the dialog meanwhile. A dialog
/// that does not appear or stays open is a failure.
template <class Dialog, std::invocable<Dialog&> User, std::invocable Open>
void inDialog(const User& user, const Open& open)
{
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&user] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "another dialog";
        EXPECT_TRUE(QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }));
        user(*dialog);
        // A mnemonic shows its button pressed for a moment before it clicks.
        if (!QTest::qWaitFor([dialog] { return !dialog->isVisible(); })) {
            ADD_FAILURE() << "still open";
            dialog->reject();
        }
    });
    QWidget* const beneath = QApplication::activeWindow();
    timer.start(0);
    open();
    if (beneath != nullptr)
        beneath->activateWindow(); // what a window manager does
    EXPECT_FALSE(timer.isActive()) << "no dialog";
}

/// The widget with the keyboard focus, which comes a moment after the window becomes active.
inline QWidget& focused()
{
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    return *QApplication::focusWidget();
}

inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&focused(), key, modifiers); }

inline void typeText(const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &focused(), Qt::Key_unknown, letter, Qt::NoModifier);
}

} // namespace zerna

// Modal forms of the tests: shown, used in their windows, closed.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <functional>

#include "desktop/Desktop.h"
#include "desktop/FormWindow.h"

namespace tessaryn {

// Shows a form, does something in its window, and tells whether that has closed it.
inline bool ClosedBy(Form& form, const std::function<void(QWidget&)>& act) {
    Dispatch([&form] { ShowModal(form); });
    QWidget& window = WindowOf(form).Window();
    window.activateWindow();
    QApplication::processEvents();
    act(window);
    const bool closed = !form.Visible;
    Dispatch([&form] { form.Hide(); });
    return closed;
}

}  // namespace tessaryn

// Not where the form Find is.
template <class Widget>
Widget& Find(QWidget& window, const char* name) {
    return *window.findChild<Widget*>(QString::fromLatin1(name));
}

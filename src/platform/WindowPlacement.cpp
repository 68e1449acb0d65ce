#include "platform/WindowPlacement.h"

#include "platform/StateFile.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace {

constexpr QPoint besideAnother(32, 32);

bool coversAnother(const QWidget &window)
{
    const QWidgetList others = QApplication::topLevelWidgets();
    return std::any_of(others.begin(), others.end(), [&window](const QWidget *other) {
        return other != &window && other->isVisible() && other->pos() == window.pos();
    });
}

} // namespace

bool windowplacement::restore(QWidget &window, const StateFile &state, const QString &key)
{
    const QByteArray kept = QByteArray::fromBase64(state.value(key).toString().toLatin1());
    if (kept.isEmpty() || !window.restoreGeometry(kept))
        return false;
    while (!window.isMaximized() && coversAnother(window))
        window.move(window.pos() + besideAnother);
    return true;
}

void windowplacement::remember(const QWidget &window, StateFile &state, const QString &key)
{
    state.remember(QString::fromLatin1(window.saveGeometry().toBase64()), key);
}

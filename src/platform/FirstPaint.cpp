#include "platform/FirstPaint.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace {

/// Waits until a window comes to light. It is painted while it handles that event, so what is
/// queued then comes after the painting.
class FirstPaintWatcher final : public QObject
{
public:
    FirstPaintWatcher(QObject &context, std::function<void()> action)
        : QObject(&context)
        , m_action(std::move(action))
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Expose && !m_isOver) {
            const auto *window = qobject_cast<const QWindow *>(watched);
            if (window != nullptr && window->isExposed()) {
                m_isOver = true;
                QTimer::singleShot(0, this, [this] { end(); });
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void end()
    {
        deleteLater();
        m_action();
    }

    std::function<void()> m_action;
    bool m_isOver = false;
};

} // namespace

void firstpaint::whenOver(QObject &context, std::function<void()> action)
{
    new FirstPaintWatcher(context, std::move(action));
}

#include "platform/FirstPaint.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTest>
#include <QWidget>

#include <memory>

namespace {

class PaintedWindow final : public QWidget
{
public:
    explicit PaintedWindow(QStringList &order)
        : m_order(order)
    {}

protected:
    void paintEvent(QPaintEvent *) override { m_order += QStringLiteral("painted"); }

private:
    QStringList &m_order;
};

class FirstPaint : public testing::Test
{
protected:
    void showAndAwaitPaint(QWidget &window)
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents();
    }

    QStringList m_order;
    QObject m_context;
    PaintedWindow m_window{m_order};
};

} // namespace

TEST_F(FirstPaint, theActionComesAfterThePainting)
{
    firstpaint::whenOver(m_context, [this] { m_order += QStringLiteral("action"); });
    m_window.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_order.contains(QStringLiteral("action")); }));
    EXPECT_EQ(m_order.first(), QStringLiteral("painted"));
}

TEST_F(FirstPaint, theActionComesOnce)
{
    firstpaint::whenOver(m_context, [this] { m_order += QStringLiteral("action"); });
    m_window.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_order.contains(QStringLiteral("action")); }));
    PaintedWindow second(m_order);
    showAndAwaitPaint(second);
    EXPECT_EQ(m_order.count(QStringLiteral("action")), 1);
}

TEST_F(FirstPaint, nothingHappensWithoutAWindow)
{
    firstpaint::whenOver(m_context, [this] { m_order += QStringLiteral("action"); });
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_order.isEmpty());
}

TEST_F(FirstPaint, nothingHappensOnceTheContextIsGone)
{
    auto context = std::make_unique<QObject>();
    firstpaint::whenOver(*context, [this] { m_order += QStringLiteral("action"); });
    context.reset();
    showAndAwaitPaint(m_window);
    EXPECT_FALSE(m_order.contains(QStringLiteral("action")));
}

#pragma once

#include "platform/HelpViewer.h"
#include "platform/NotificationCentre.h"
#include "platform/TextField.h"
#include "prefs/ColorWell.h"
#include "prefs/MarkerShapeControl.h"
#include "prefs/PrefsController.h"
#include "prefs/PrefsFixture.h"

#include <QAbstractButton>
#include <QDialog>
#include <QPainter>
#include <QTest>

#include <string>

/// Draws each shape as a square: only the panel's buttons are of interest.
class SquareMarkers final : public PrefsMarkers
{
public:
    void drawMarker(QPainter &painter, int, const QRectF &square) const override
    {
        painter.fillRect(square, painter.pen().color());
    }
};

/// Notes the places of the help that were opened.
class NotedHelp final : public HelpViewer
{
public:
    void openHelpAnchor(const QString &anchor, const QString &inBook) override
    {
        opened << inBook + u'#' + anchor;
    }

    QStringList opened;
};

/// The preferences panel over a store with the factory settings, used as a user does.
class PrefsControllerFixture : public PrefsFixture
{
protected:
    PrefsControllerFixture()
    {
        m_prefs.setDefaults();
        m_controller.awakeFromNib();
        QObject::connect(&m_centre, &NotificationCentre::posted, &m_centre,
                         [this](const QString &name, QObject *object) {
                             m_notified << name;
                             m_notifiedObject = object;
                             m_dirtyWhenNotified = m_prefs.dirty();
                         });
    }

    template <typename Control>
    [[nodiscard]] Control *control(const char *name) const
    {
        return m_controller.prefsWindow().findChild<Control *>(QString::fromLatin1(name));
    }

    [[nodiscard]] ColorWell *well(const char *name) const { return control<ColorWell>(name); }
    [[nodiscard]] std::string text(const char *name) const
    {
        return control<TextField>(name)->text().toStdString();
    }

    [[nodiscard]] ColorWell *markerColor(int series) const
    {
        return control<ColorWell>(("markerColor" + std::to_string(series + 1)).c_str());
    }
    [[nodiscard]] MarkerShapeControl *markerStyle(int series) const
    {
        return control<MarkerShapeControl>(
            ("markerStyleSegment" + std::to_string(series + 1)).c_str());
    }
    [[nodiscard]] TextField *markerSize(int series) const
    {
        return control<TextField>(("markerSizeTex" + std::to_string(series + 1)).c_str());
    }

    static void type(TextField &field, const QString &text)
    {
        field.selectAll();
        QTest::keyClicks(&field, text);
    }
    void enter(const char *name, const char *text) const
    {
        type(*control<TextField>(name), QString::fromLatin1(text));
    }
    void press(const char *name) const
    {
        auto *button = control<QAbstractButton>(name);
        // A click on a check box counts only on its box or text.
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
    }
    void pressSegment(int series, int segment) const
    {
        QTest::mouseClick(markerStyle(series)->findChildren<QAbstractButton *>().at(segment),
                          Qt::LeftButton);
    }

    SquareMarkers m_markers;
    NotificationCentre m_centre;
    NotedHelp m_help;
    PrefsController m_controller{m_prefs, {m_markers, m_centre, m_help}};
    QStringList m_notified;
    QObject *m_notifiedObject = nullptr;
    bool m_dirtyWhenNotified = true;
};

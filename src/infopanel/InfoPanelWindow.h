#pragma once

#include "infopanel/InfoTexts.h"

#include <QWidget>

#include <array>
#include <memory>

class QLabel;

namespace Ui {
class InfoPanel;
}

/// The panel itself: three groups of captions and values. It floats above the documents and never
/// takes the keyboard from them.
class InfoPanelWindow : public QWidget
{
    Q_OBJECT

public:
    InfoPanelWindow();
    ~InfoPanelWindow() override;

    void showImageInfo(const QString &info);
    /// Axes without captions leave the captions as they are.
    void showAxisInfo(const infotexts::AxisTexts &axes);
    void showDataInfo(const infotexts::DataTexts &info);

private:
    void setUpFonts();
    void keepWidth();

    const std::unique_ptr<Ui::InfoPanel> m_ui;
    std::array<QLabel *, infotexts::axisRows> m_axisInfo{}; // owned by the panel, as the others
    std::array<QLabel *, infotexts::axisRows> m_axisLabel{};
    std::array<QLabel *, infotexts::dataRows> m_dataInfo{};
};

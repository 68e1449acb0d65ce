#include "infopanel/InfoPanelWindow.h"

#include "ui_InfoPanel.h"

#include <QFontDatabase>
#include <QLabel>

#include <algorithm>

namespace {

constexpr Qt::WindowFlags panelFlags = Qt::Tool | Qt::WindowDoesNotAcceptFocus |
                                       Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowCloseButtonHint;

} // namespace

InfoPanelWindow::InfoPanelWindow()
    : QWidget(nullptr, panelFlags)
    , m_ui(std::make_unique<Ui::InfoPanel>())
{
    const Ui::InfoPanel &ui = *m_ui;
    setFont(QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont));
    m_ui->setupUi(this);
    m_axisInfo = {ui.axisInfo0, ui.axisInfo1, ui.axisInfo2, ui.axisInfo3,
                  ui.axisInfo4, ui.axisInfo5, ui.axisInfo6};
    m_axisLabel = {ui.axisLabel0, ui.axisLabel1, ui.axisLabel2, ui.axisLabel3,
                   ui.axisLabel4, ui.axisLabel5, ui.axisLabel6};
    m_dataInfo = {ui.dataInfo0, ui.dataInfo1, ui.dataInfo2, ui.dataInfo3};
    setUpFonts();
}

InfoPanelWindow::~InfoPanelWindow() = default;

void InfoPanelWindow::setUpFonts()
{
    QFont titleFont = QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont);
    titleFont.setBold(true);
    for (QLabel *title : {m_ui->imageTitle, m_ui->axisTitle, m_ui->dataTitle})
        title->setFont(titleFont);
}

void InfoPanelWindow::showImageInfo(const QString &info)
{
    m_ui->imageInfo0->setText(info);
    keepWidth();
}

void InfoPanelWindow::showAxisInfo(const infotexts::AxisTexts &axes)
{
    for (std::size_t row = 0; row < m_axisInfo.size(); ++row)
        m_axisInfo.at(row)->setText(axes.info.at(row));
    if (!axes.labels)
        return;
    // The first caption is the same for every kind of axes.
    for (std::size_t row = 1; row < m_axisLabel.size(); ++row)
        m_axisLabel.at(row)->setText(axes.labels->at(row - 1));
    keepWidth();
}

void InfoPanelWindow::showDataInfo(const infotexts::DataTexts &info)
{
    for (std::size_t row = 0; row < m_dataInfo.size(); ++row)
        m_dataInfo.at(row)->setText(info.at(row));
    keepWidth();
}

// Shorter captions or numbers do not make the panel narrower again: it would twitch during a drag.
void InfoPanelWindow::keepWidth()
{
    const auto keep = [this](int column, const auto &labels) {
        int width = m_ui->infoLayout->columnMinimumWidth(column);
        for (const QLabel *label : labels)
            width = std::max(width, label->sizeHint().width());
        m_ui->infoLayout->setColumnMinimumWidth(column, width);
    };
    keep(0, m_axisLabel);
    keep(1, m_axisInfo);
    keep(1, m_dataInfo);
    keep(1, std::array{m_ui->imageInfo0});
}

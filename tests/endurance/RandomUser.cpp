#include "endurance/RandomUser.h"

#include "axes/CurrentAxes.h"
#include "capture/DataTableView.h"

#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QMimeData>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <utility>

namespace {

QImage pictureOf(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    picture.setPixelColor(0, 0, Qt::blue);
    return picture;
}

} // namespace

RandomUser::RandomUser(unsigned seed)
    : m_random(seed)
{}

void RandomUser::act()
{
    using Action = void (RandomUser::*)();
    static constexpr std::array<Action, 32> actions{&RandomUser::clickThePicture,
                                                    &RandomUser::clickThePicture,
                                                    &RandomUser::clickThePicture,
                                                    &RandomUser::clickThePicture,
                                                    &RandomUser::clickThePicture,
                                                    &RandomUser::clickThePicture,
                                                    &RandomUser::dragOnThePicture,
                                                    &RandomUser::dragAnAnchor,
                                                    &RandomUser::dragAnAnchor,
                                                    &RandomUser::dragAnAnchor,
                                                    &RandomUser::rest,
                                                    &RandomUser::changePage,
                                                    &RandomUser::changePage,
                                                    &RandomUser::changePage,
                                                    &RandomUser::giveACommand,
                                                    &RandomUser::giveACommand,
                                                    &RandomUser::giveACommand,
                                                    &RandomUser::undoOrRedo,
                                                    &RandomUser::undoOrRedo,
                                                    &RandomUser::undoOrRedo,
                                                    &RandomUser::choose,
                                                    &RandomUser::choose,
                                                    &RandomUser::check,
                                                    &RandomUser::turnTheAngle,
                                                    &RandomUser::typeAValue,
                                                    &RandomUser::selectInTheTable,
                                                    &RandomUser::deleteASeries,
                                                    &RandomUser::changeTheTable,
                                                    &RandomUser::changeTheWindow,
                                                    &RandomUser::pressAKey,
                                                    &RandomUser::save,
                                                    &RandomUser::revert};
    // A new picture begins the work anew, which nobody does every minute.
    if (below(60) == 0)
        pasteAPicture();
    else if (below(60) == 0)
        openAPicture();
    else
        (this->*actions.at(below(actions.size())))();
    answerSheets();
    m_test.endEvent();
}

int RandomUser::number(int low, int high)
{
    return low + static_cast<int>(below(static_cast<std::size_t>(high - low)));
}

QPoint RandomUser::somewhere()
{
    return {number(-5, document().graphView().width() + 5),
            number(-5, document().graphView().height() + 5)};
}

Qt::KeyboardModifiers RandomUser::heldKeys()
{
    static constexpr std::array<Qt::KeyboardModifiers::enum_type, 8> keys{
        Qt::NoModifier,  Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
        Qt::AltModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::MetaModifier};
    return keys.at(below(keys.size()));
}

/// Nobody clicks what is not there.
void RandomUser::clickOn(QWidget *button)
{
    if (button->isVisible() && button->isEnabled())
        QTest::mouseClick(button, Qt::LeftButton);
}

void RandomUser::clickThePicture()
{
    const Qt::KeyboardModifiers keys = heldKeys();
    m_test.services.desktop->heldModifiers = keys;
    QTest::mouseClick(&document().graphView(), Qt::LeftButton, keys, somewhere());
    m_test.services.desktop->heldModifiers = Qt::NoModifier;
}

void RandomUser::dragOnThePicture()
{
    const Qt::KeyboardModifiers keys = heldKeys();
    m_test.services.desktop->heldModifiers = keys;
    dragFrom(somewhere(), keys);
    m_test.services.desktop->heldModifiers = Qt::NoModifier;
}

void RandomUser::dragAnAnchor()
{
    const FloatPoint anchor = document().currentAxes().currentAnchors().at(below(4));
    const float scale = document().graphView().imageScale();
    dragFrom(m_test.widgetPosition(static_cast<int>(anchor.x * scale),
                                   static_cast<int>(anchor.y * scale)),
             Qt::NoModifier);
}

void RandomUser::dragFrom(QPoint begin, Qt::KeyboardModifiers keys)
{
    QWidget *view = &document().graphView();
    QTest::mousePress(view, Qt::LeftButton, keys, begin);
    m_test.endEvent();
    for (int move = 0; move < 2; ++move)
        QTest::mouseMove(view, somewhere());
    QTest::mouseRelease(view, Qt::LeftButton, keys, somewhere());
}

void RandomUser::rest()
{
    m_test.services.desktop->pointer = document().graphView().mapToGlobal(somewhere());
    document().graphView().mouseCheckRoutine();
}

void RandomUser::changePage()
{
    clickOn(below(3) == 0 ? m_test.ui().axisTabButton : m_test.ui().digitizingTabButton);
}

void RandomUser::giveACommand()
{
    static constexpr std::array commands{"delete",
                                         "selectAll",
                                         "copy",
                                         "showAxisSetting",
                                         "showDigitizing",
                                         "zoomIn",
                                         "zoomOut",
                                         "zoomToActualSize",
                                         "zoomToFitWidth",
                                         "zoomToFitHeight",
                                         "imageRotateCw",
                                         "imageRotateCcw",
                                         "choosePointerTool",
                                         "choosePointerTool",
                                         "choosePointerTool",
                                         "chooseHandTool",
                                         "chooseZoomInTool",
                                         "chooseTrimTool",
                                         "chooseParallelAxes",
                                         "chooseQuadrangleAxes",
                                         "choosePolarAxes",
                                         "resetPosition",
                                         "wholePosition",
                                         "moveToNextSeries",
                                         "moveToPrevSeries",
                                         "setDrawMarkers",
                                         "setDrawMarkersAndLines",
                                         "setDrawLines",
                                         "simulateToggleSort",
                                         "simulateToggleSort"};
    QAction *const action = m_test.action(commands.at(below(commands.size())));
    ASSERT_NE(action, nullptr);
    action->trigger();
}

void RandomUser::undoOrRedo() { m_test.action(below(3) == 0 ? "redo" : "undo")->trigger(); }

void RandomUser::choose()
{
    const std::array popups{m_test.ui().seriesPopup, m_test.ui().markerDrawPopup,
                            m_test.ui().autoXModePopUp, m_test.ui().axisTypePopup,
                            m_test.ui().thetaRangePopup};
    QWidget *const popup = popups.at(below(popups.size()));
    if (popup->isVisible() && popup->isEnabled())
        QTest::keyClick(popup, below(2) == 0 ? Qt::Key_Down : Qt::Key_Up);
}

void RandomUser::check()
{
    const std::array<QAbstractButton *, 5> boxes{m_test.ui().sortCheck, m_test.ui().lockXCheck,
                                                 m_test.ui().lockYCheck, m_test.ui().logXCheck,
                                                 m_test.ui().logYCheck};
    clickOn(boxes.at(below(boxes.size())));
}

void RandomUser::turnTheAngle()
{
    clickOn(below(2) == 0 ? m_test.ui().counterClockwiseRadio : m_test.ui().clockwiseRadio);
}

void RandomUser::typeAValue()
{
    const std::array<QLineEdit *, 8> fields{
        m_test.ui().minXTextField,     m_test.ui().maxXTextField,     m_test.ui().minYTextField,
        m_test.ui().maxYTextField,     m_test.ui().initialXTextField, m_test.ui().stepXTextField,
        m_test.ui().currentXTextField, m_test.ui().currentYTextField};
    static constexpr std::array values{"0", "1", "-2.5", "1e3", "1e-3",
                                       "x", "",  "100",  "0.5", "12.34567891"};
    QLineEdit *const field = fields.at(below(fields.size()));
    if (!field->isEnabled() || !field->isVisible())
        return;
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClicks(field, QString::fromLatin1(values.at(below(values.size()))));
    QTest::keyClick(field, Qt::Key_Return);
}

void RandomUser::selectInTheTable()
{
    DataTableView &table = document().dataTableView();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, heldKeys(),
                      {number(0, table.viewport()->width()), number(0, 40)});
}

void RandomUser::deleteASeries()
{
    DataTableView &table = document().dataTableView();
    const int column = m_test.ui().seriesPopup->currentIndex();
    if (below(3) == 0)
        m_test.action("selectAll")->trigger();
    else
        QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier,
                          {table.columnViewportPosition(column) + 5, 5});
    m_test.action("delete")->trigger();
}

void RandomUser::changeTheTable()
{
    if (below(3) == 0)
        clickOn(m_test.ui().drawerOpenButton);
    else
        document().dataTableView().horizontalHeader()->resizeSection(number(0, 10),
                                                                     number(20, 200));
}

void RandomUser::changeTheWindow()
{
    QWidget &window = document().window();
    if (below(3) == 0)
        m_test.action("zoomWindow")->trigger();
    else if (below(2) == 0)
        window.resize(number(300, 1300), number(300, 1000));
    else
        window.move(number(0, 900), number(0, 600)); // sticking out by less than a half
}

void RandomUser::pressAKey()
{
    static constexpr std::array keys{Qt::Key_Delete, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Left,
                                     Qt::Key_Right};
    QWidget *const place = below(2) == 0 ? static_cast<QWidget *>(&document().dataTableView())
                                         : &document().graphView();
    QTest::keyClick(place, keys.at(below(keys.size())));
}

void RandomUser::pasteAPicture()
{
    auto content = std::make_unique<QMimeData>();
    content->setImageData(pictureOf({number(40, 700), number(40, 700)}));
    m_test.services.fakePasteboard.setContent(std::move(content));
    m_test.action("paste")->trigger();
    ++m_newPictures;
}

void RandomUser::openAPicture()
{
    const QString path = m_folder.filePath(QStringLiteral("picture.png"));
    ASSERT_TRUE(pictureOf({number(300, 900), number(300, 900)}).save(path, "png"));
    bool isShown = false;
    const auto noticing = QObject::connect(&document().graphView(), &GraphImageView::pictureChanged,
                                           [&isShown] { isShown = true; });
    m_test.action("openImageFile")->trigger();
    ASSERT_TRUE(m_test.services.panels->confirm(path));
    EXPECT_TRUE(QTest::qWaitFor([&isShown] { return isShown; }));
    QObject::disconnect(noticing);
    ++m_newPictures;
}

void RandomUser::save()
{
    m_test.action("saveDocument")->trigger();
    m_test.services.panels->confirm(m_folder.filePath(QStringLiteral("work.crvgrab")));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !document().isDocumentEdited(); }));
    ++m_saves;
}

void RandomUser::revert()
{
    QAction *const action = m_test.action("revertDocumentToSaved");
    if (!action->isEnabled())
        return;
    action->trigger();
    if (!m_test.services.sheets->answerFirst(below(4) == 0 ? SheetAnswer::Alternate
                                                           : SheetAnswer::Default))
        return;
    EXPECT_TRUE(QTest::qWaitFor([this] { return !document().isReading(); }));
    ++m_reverts;
}

void RandomUser::answerSheets()
{
    m_test.endEvent();
    while (m_test.services.sheets->answerFirst(below(2) == 0 ? SheetAnswer::Default
                                                             : SheetAnswer::Alternate))
        continue;
}

// The smallest program of the toolkit that shows a picture: what StartBench compares with.
#include <QApplication>
#include <QLabel>
#include <QPixmap>
#include <QScrollArea>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QLabel picture;
    if (argc > 1)
        picture.setPixmap(QPixmap(QString::fromLocal8Bit(argv[1])));
    QScrollArea window;
    window.setWidget(&picture);
    window.resize(760, 620);
    window.show();
    const int result = QApplication::exec();
    window.takeWidget(); // the picture is not the window's to delete
    return result;
}

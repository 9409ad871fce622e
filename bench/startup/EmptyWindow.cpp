#include <QApplication>
#include <QWidget>

/// The least that a Qt program can do: an empty window of the tool's smallest size.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setMinimumSize(800, 600);
    window.show();
    return QApplication::exec();
}

// A Qt window that drags text or the given URLs, and tells when each drag is over.

#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QRasterWindow>
#include <QUrl>

#include <cstdio>

namespace {

class Source : public QRasterWindow
{
    void exposeEvent(QExposeEvent *) override { say("ready"); }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (!event->buttons().testFlag(Qt::LeftButton) || dragging_)
            return;
        dragging_ = true;
        const auto arguments = QCoreApplication::arguments();
        auto *data = new QMimeData;
        if (arguments.size() > 3)
            data->setUrls(QUrl::fromStringList(arguments.mid(3)));
        else
            data->setText(arguments[1]);
        auto *drag = new QDrag(this);
        drag->setMimeData(data);
        drag->exec(Qt::CopyAction);
        say("done");
        dragging_ = false;
    }
    static void say(const char *what)
    {
        std::puts(what);
        std::fflush(stdout);
    }
    bool dragging_ = false;
};

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    Source source;
    source.setGeometry(100, 300, 200, 200);
    source.show();
    return QGuiApplication::exec();
}

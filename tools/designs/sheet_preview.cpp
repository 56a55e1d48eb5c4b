// SPDX-License-Identifier: MIT
// Shows a page with a style sheet, takes its picture and measures the contrast of its texts.
#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTextStream>
#include <QTimer>
#include <QWebEngineSettings>
#include <QWebEngineView>

namespace {

// The picture shows a window of 760 by 570 pixels, drawn at twice its size so that shrinking it keeps it
// sharp.
constexpr QSize PictureWindow(760, 570);
constexpr int Enlargement = 2;
constexpr QSize PictureSize(480, 360);

QTextStream Out(stdout);

QByteArray Contents(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(name));
    return file.readAll();
}

// The page with the sheet in its head. Sheets hold nothing but comments outside ASCII.
QString WithSheet(QString page, const QByteArray& sheet, bool statesAsClasses) {
    QString rules = QString::fromLatin1(sheet);
    if (statesAsClasses) {
        static const QRegularExpression state(
            QStringLiteral("::?(link|visited|hover|focus|active|placeholder)\\b"));
        rules.replace(state, QStringLiteral(".is-\\1"));
    }
    return page.replace(QStringLiteral("</head>"), "<style>" + rules + "</style></head>");
}

void Show(QWebEngineView& view, const QString& page, QSize size, qreal zoom) {
    view.resize(size);
    view.setZoomFactor(zoom);
    view.show();
    QEventLoop loop;
    QObject::connect(&view, &QWebEngineView::loadFinished, &loop, &QEventLoop::quit);
    view.setHtml(page);
    loop.exec();
    // The page is painted by another process, a few frames later.
    QTimer::singleShot(700, &loop, &QEventLoop::quit);
    loop.exec();
}

// Prints the least contrast and every fault; returns whether the page is without fault.
bool Measure(QWebEngineView& view, const QString& script, int width) {
    QString result;
    QEventLoop loop;
    view.page()->runJavaScript(script, [&](const QVariant& value) {
        result = value.toString();
        loop.quit();
    });
    loop.exec();
    const QJsonObject report = QJsonDocument::fromJson(result.toUtf8()).object();
    // A script that failed, or a window of another width, has measured nothing.
    if (report[QStringLiteral("texts")].toInt() < 100 || report[QStringLiteral("width")].toInt() != width) {
        Out << "  not measured at " << width << " pixels: " << result << Qt::endl;
        return false;
    }
    Out << "  " << width << " pixels: least contrast "
        << QString::number(report[QStringLiteral("least")].toDouble(), 'f', 2) << " ("
        << report[QStringLiteral("place")].toString() << "), " << report[QStringLiteral("texts")].toInt()
        << " measurements" << Qt::endl;
    const QJsonArray faults = report[QStringLiteral("faults")].toArray();
    for (const QJsonValue& fault : faults) Out << "    FAULT " << fault.toString() << Qt::endl;
    return faults.isEmpty();
}

} // namespace

// Usage: sheet_preview PAGE SHEET SCRIPT PICTURE. Ends with 1 if a text is hard to read or the page too wide.
int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() != 5) qFatal("usage: sheet_preview PAGE SHEET SCRIPT PICTURE");
    const QString page = QString::fromUtf8(Contents(arguments[1]));
    const QByteArray sheet = Contents(arguments[2]);
    const QString script = QString::fromUtf8(Contents(arguments[3]));

    QWebEngineView view;
    view.settings()->setAttribute(QWebEngineSettings::ShowScrollBars, false);
    Show(view, WithSheet(page, sheet + "#unseen{display:none;}", false), PictureWindow * Enlargement,
         Enlargement);
    const QImage picture =
        view.grab().toImage().scaled(PictureSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (!picture.save(arguments[4])) qFatal("cannot write %s", qPrintable(arguments[4]));

    bool good = true;
    for (const int width : {1024, 320}) {
        Show(view, WithSheet(page, sheet, true), QSize(width, 700), 1);
        good = Measure(view, script, width) && good;
    }
    return good ? 0 : 1;
}

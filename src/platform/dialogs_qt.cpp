// SPDX-License-Identifier: MIT
#include "platform/dialogs_qt.h"

#include "platform/files.h"
#include "platform/literals.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QUrl>

namespace Dialogs {

namespace {

QMessageBox::Icon QtIcon(Icon icon) {
    switch (icon) {
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

// A question takes only its own answers: Esc and the frame's X choose "Abbrechen" where there is one; a
// question without it stays until it is answered.
class QuestionBox : public QMessageBox {
public:
    QuestionBox(const Message& message, StandardButtons buttons, QWidget* parent)
        : QMessageBox(QtIcon(message.icon), message.title, QString(message.text).replace(u"\r\n"_s, u"\n"_s),
                      buttons, parent),
          m_stays(message.buttons == Buttons::YesNo) {
        if (m_stays) setWindowFlag(Qt::WindowCloseButtonHint, false);
    }

    void reject() override {
        if (!m_stays) QMessageBox::reject();
    }

protected:
    void closeEvent(QCloseEvent* event) override {
        if (m_stays) return event->ignore();
        QMessageBox::closeEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (m_stays && event->matches(QKeySequence::Cancel)) return event->accept();
        QMessageBox::keyPressEvent(event);
    }

private:
    const bool m_stays;
};

// The splash lies over all windows; while a dialog is open it must not lie over its buttons.
class WithoutSplash {
public:
    WithoutSplash() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->windowType() != Qt::SplashScreen || !window->isVisible()) continue;
            window->hide();
            m_hidden.append(window);
        }
    }
    ~WithoutSplash() {
        for (const QPointer<QWidget>& window : m_hidden) {
            if (window) window->show();
        }
    }
    WithoutSplash(const WithoutSplash&) = delete;
    WithoutSplash& operator=(const WithoutSplash&) = delete;

private:
    QList<QPointer<QWidget>> m_hidden;
};

QMessageBox::StandardButtons QtButtons(Buttons buttons) {
    switch (buttons) {
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

} // namespace

QStringList QtFilters(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        patterns.removeDuplicates();
        patterns.replaceInStrings(u"*.*"_s, u"*"_s); // "all files" has files without an extension too
        filters << u"%1 (%2)"_s.arg(parts[i], patterns.join(u' '));
    }
    return filters;
}

QString ExtensionOfGroup(const QString& filter, const QString& chosen) {
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // the dialog tells the group with or without the patterns that were put behind its label
        if (chosen != parts[i] && !chosen.startsWith(parts[i] + u" ("_s)) continue;
        const QString pattern = parts[i + 1].section(u';', 0, 0);
        return pattern.startsWith(u"*.") && pattern != u"*.*" ? pattern.sliced(1) : QString();
    }
    return {};
}

Answer QtHandler::Ask(const Message& message) {
    const WithoutSplash free;
    QuestionBox box(message, QtButtons(message.buttons), QApplication::activeWindow());
    box.setObjectName(u"MsgBox"_s);
    if (message.title.isEmpty()) box.setWindowTitle(m_programName);
    box.setTextFormat(Qt::PlainText);
    if (message.buttons == Buttons::YesNo || message.buttons == Buttons::YesNoCancel) {
        box.setDefaultButton(message.preset == Answer::No ? QMessageBox::No : QMessageBox::Yes);
    }
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Ok:
        return Answer::Ok;
    default:
        return message.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
}

QString QtHandler::AskText(const QString& prompt, const QString& title, const QString& preset) {
    bool ok = false;
    const QString text =
        QInputDialog::getText(QApplication::activeWindow(), title, prompt, QLineEdit::Normal, preset, &ok);
    return ok ? text : QString();
}

QString QtHandler::StartFolder() const {
    const QString folder = m_startFolder ? m_startFolder() : QString();
    return folder.isEmpty() ? m_lastFolder : folder;
}

QString QtHandler::ChooseFile(const FileQuestion& question, bool save) {
    QFileDialog dialog(QApplication::activeWindow(), question.title);
    dialog.setObjectName(u"Dialog"_s);
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails); // the labels name the patterns themselves
    dialog.setOption(QFileDialog::DontConfirmOverwrite);  // the program asks that itself
    dialog.setNameFilters(QtFilters(question.filter));
    if (const QString folder = StartFolder(); !folder.isEmpty()) dialog.setDirectory(folder);
    if (!question.name.isEmpty()) dialog.selectFile(question.name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    QString path = dialog.selectedFiles().constFirst();
    m_lastFolder = QFileInfo(path).absolutePath();
    // A name typed without an extension gets the first one of the chosen group.
    if (save && QFileInfo(path).suffix().isEmpty()) {
        path += ExtensionOfGroup(question.filter, dialog.selectedNameFilter());
    }
    return Files::FromSystem(path);
}

QString QtHandler::ChooseOpenFile(const FileQuestion& question) { return ChooseFile(question, false); }

QString QtHandler::ChooseSaveFile(const FileQuestion& question) { return ChooseFile(question, true); }

QString QtHandler::ChooseFolder(const QString& title) {
    return Files::FromSystem(
        QFileDialog::getExistingDirectory(QApplication::activeWindow(), title, StartFolder()));
}

void QtHandler::Beep() { QApplication::beep(); }

void QtHandler::OpenAddress(const QString& address) {
    QDesktopServices::openUrl(QUrl::fromUserInput(address));
}

} // namespace Dialogs

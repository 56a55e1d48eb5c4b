// SPDX-License-Identifier: MIT
// The clip library by its real controls, in the real program.
#include "clips/clip_sheet.h"
#include "clips/clip_view.h"
#include "clips/frm_pab.h"
#include "clips/frm_pab_preview.h"
#include "clips/thumbnail_cache.h"
#include "support/program_test.h"
#include "support/small_disk.h"

#include <QElapsedTimer>
#include <QImageWriter>
#include <QListWidget>
#include <QMovie>
#include <QScrollBar>

using Dialogs::Answer;

class FrmPabTest : public ProgramTest {
    Q_OBJECT

    // An animated GIF of two frames that fill the picture, of which little more than a pixel is told.
    static QByteArray Gif(int width, int height) {
        QByteArray size;
        for (const int length : {width, height}) size.append(char(length & 255)).append(char(length >> 8));
        const QByteArray frame = QByteArray::fromHex("21f904000a000000") + QByteArray::fromHex("2c00000000") +
                                 size + QByteArray::fromHex("000202440100");
        return "GIF89a" + size + QByteArray::fromHex("800000ff0000ffffff") + frame + frame + ';';
    }
    static QByteArray Picture(int width, int height, const char* format, QColor color = Qt::red) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(color);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter(&buffer, format).write(image);
        return bytes;
    }

    static void Open() {
        Driver::Trigger(u"Menu_Insert_PageArtBox"_s);
        QTRY_VERIFY_WITH_TIMEOUT(Sheet().IsFilled(), Patience);
    }
    static ClipView& Sheet() { return *Shared<Frm_PAB>().findChild<ClipView*>(u"Pic_ViewScreen"_s); }
    static QAction& Action(const QString& name) { return *Shared<Frm_PAB>().findChild<QAction*>(name); }
    static void Press(const QString& name) {
        QVERIFY2(Action(name).isEnabled(), qPrintable(name));
        Action(name).trigger();
        QCoreApplication::processEvents();
    }
    static QString Panels() {
        QStringList texts;
        for (int i = 1; i <= 4; ++i)
            texts << Shared<Frm_PAB>().findChild<QLabel*>(u"StatusBar_PAB_Panel_%1"_s.arg(i))->text();
        return texts.join(u'|');
    }
    static void ChooseFolder(const QString& name, bool open) {
        auto* list = Shared<Frm_PAB>().findChild<QListWidget*>(u"Lvw_Folders"_s);
        const auto rows = list->findItems(name, Qt::MatchExactly);
        QCOMPARE(rows.size(), 1);
        const QPoint place = list->visualItemRect(rows.first()).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        if (!open) return;
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        QTRY_VERIFY_WITH_TIMEOUT(Sheet().IsFilled(), Patience);
    }
    static void ClickClip(qsizetype index, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&Sheet(), button, {}, ClipSheet::Frame(index).center());
    }
    void OpenPage(const QByteArray& type = "HTML") {
        Documents::OpenFile(
            m_folder->Write(u"web/seite.htm"_s, "<!-- -//W3C//DTD " + type + " -->\r\n<p></p>"));
        Select(Box().Text().indexOf(u"</p>"));
    }
    void ExpectDeleting(const QString& question, Answer answer) {
        m_dialogs->ExpectMessage(u"Löschen"_s, question, answer, Dialogs::Icon::Exclamation);
    }

protected slots:
    void init() override {
        ProgramTest::init();
        qputenv("XDG_CACHE_HOME", m_folder->System(u"cache"_s).toLocal8Bit());
        ThumbnailCache::Forget();
        QDir(m_folder->System(u"pageartbox"_s)).removeRecursively();
        m_folder->Write(u"pageartbox/rosen.gif"_s, Gif(30, 200));
        m_folder->Write(u"pageartbox/Linien/linie.jpg"_s, Picture(300, 8, "jpg"));
    }

private slots:
    void showsFoldersAndChoosesByMouseAndKeys() {
        OpenPage();
        for (int i = 0; i < 40; ++i)
            m_folder->Write(u"pageartbox/Viele/%1.jpg"_s.arg(i), Picture(100 + i, 50, "jpg"));
        Open();
        auto& window = Shared<Frm_PAB>();
        QVERIFY(Global::ClipWindowOpen);
        QCOMPARE(window.windowTitle(), u"Sorvane PageArtBox"_s);
        QCOMPARE(Panels(), u"|||"_s);
        QVERIFY(!Action(u"ToolBar_View"_s).isEnabled() && !Action(u"ToolBar_Import"_s).isEnabled());
        QCOMPARE(Action(u"ToolBar_MainPage"_s).toolTip(), u"Haupseite"_s);
        ClickClip(0);
        QCOMPARE(Panels(), u"rosen.gif|B: 30|H: 200|GIF"_s);
        QVERIFY(Action(u"ToolBar_View"_s).isEnabled() && Action(u"ToolBar_Import"_s).isEnabled());
        QVERIFY(!Action(u"ToolBar_File_KillFolder"_s).isEnabled());

        ChooseFolder(u"Viele"_s, false);
        QVERIFY(Action(u"ToolBar_File_KillFolder"_s).isEnabled());
        QCOMPARE(Sheet().Count(), 1);
        ChooseFolder(u"Viele"_s, true);
        QCOMPARE(Sheet().Count(), 40);
        QCOMPARE(Panels(), u"|||"_s);
        QVERIFY(!Action(u"ToolBar_File_KillFile"_s).isEnabled());
        auto* bar = window.findChild<QScrollBar*>(u"Scr_ScrollGraphics"_s);
        QCOMPARE(bar->maximum(), 6);
        QTest::keyClick(&Sheet(), Qt::Key_Down);
        QCOMPARE(Sheet().Chosen(), 0);
        for (const auto key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_End}) QTest::keyClick(&Sheet(), key);
        QCOMPARE(Panels(), u"39.jpg|B: 139|H: 50|JPG"_s);
        QCOMPARE(Sheet().y(), -90 * bar->value());
        QVERIFY(bar->value() > 0 && Sheet().visibleRegion().contains(ClipSheet::Selection(39)));
        Press(u"ToolBar_MainPage"_s);
        QCOMPARE(Sheet().Count(), 1);
        QCOMPARE(bar->isEnabled(), false);
        Press(u"ToolBar_File_Exit"_s);
        QVERIFY(!Global::ClipWindowOpen && !Loaded<Frm_PAB>());
    }

    void insertsNameOrTag() {
        OpenPage("XHTML");
        Open();
        ClickClip(0);
        const QString before = Box().Text();
        m_dialogs->ExpectSaveFile(u"Grafik speichern unter"_s, {});
        Press(u"ToolBar_Import"_s);
        const QString target = m_folder->Path(u"web\\bilder\\neu.gif"_s);
        m_folder->Write(u"web/bilder/neu.gif"_s, "alt");
        const auto expectQuestion = [&](Answer answer) {
            m_dialogs->ExpectSaveFile(u"Grafik speichern unter"_s, target);
            m_dialogs->ExpectMessage(
                u"Speichern"_s,
                u"Eine Datei mit diesem Namen existiert bereits.\rSoll sie überschrieben werden?"_s, answer,
                Dialogs::Icon::Exclamation);
        };
        expectQuestion(Answer::No);
        Press(u"ToolBar_Import_ImgTag"_s);
        QCOMPARE(m_folder->Read(u"web/bilder/neu.gif"_s), "alt");
        QCOMPARE(Box().Text(), before);

        expectQuestion(Answer::Yes);
        Press(u"ToolBar_Import_ImgTag"_s);
        QCOMPARE(m_folder->Read(u"web/bilder/neu.gif"_s), Gif(30, 200));
        QVERIFY(Box().Text().endsWith(u"<p><img src=\"bilder/neu.gif\" width=\"30\" height=\"200\" /></p>"));
        Driver::Trigger(u"Menu_Edit_Undo"_s);
        QCOMPARE(Box().Text(), before);
        Select(before.indexOf(u"</p>"));
        m_dialogs->ExpectSaveFile(u"Grafik speichern unter"_s, m_folder->Path(u"web\\b.gif"_s));
        Press(u"ToolBar_Import_FileName"_s);
        QVERIFY(Box().Text().endsWith(u"<p>b.gif</p>"));

        // nothing goes into a document that is not there
        Global::DocChanged = false;
        Driver::Trigger(u"Menu_File_Close"_s);
        Shared<Frm_PAB>().InsertClip(m_folder->Path(u"pageartbox\\rosen.gif"_s), Frm_PAB::Mode::FileName);
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&Shared<Frm_PAB>(), &activation);
        QVERIFY(!Action(u"ToolBar_Import"_s).isEnabled() && !Global::CodeWindowOpen);
    }

    void keepsThePageWhereTheDiskIsFull() {
        const SmallDisk disk;
        if (!disk.Mounted()) QSKIP("only root may mount a disk");
        OpenPage();
        m_folder->Write(u"pageartbox/gross.jpg"_s, QByteArray(30'000, 'x'));
        Open();
        ClickClip(0);
        disk.Fill(4096);
        const QString before = Box().Text();
        m_dialogs->ExpectSaveFile(u"Grafik speichern unter"_s, disk.Path() + u"\\gross.jpg"_s);
        m_dialogs->ExpectFailedSave();
        Press(u"ToolBar_Import_ImgTag"_s);
        QCOMPARE(Box().Text(), before);
        QVERIFY(!Files::CanRead(disk.Path() + u"\\gross.jpg"_s));
    }

    void changesTheLibrary() {
        OpenPage();
        Open();
        ChooseFolder(u"Linien"_s, true);
        m_dialogs->ExpectOpenFile(u"Neue Datei"_s, m_folder->Write(u"von/neu.jpg"_s, Picture(20, 20, "jpg")));
        Press(u"ToolBar_File"_s);
        QVERIFY(m_folder->Has(u"pageartbox/Linien/neu.jpg"_s));
        QCOMPARE(Sheet().Count(), 2);
        ClickClip(1);
        const QString toTrash =
            u"Sind Sie sicher, dass Sie die Datei in den Papierkorb verschieben möchten?"_s;
        ExpectDeleting(toTrash, Answer::No);
        QTest::keyClick(&Sheet(), Qt::Key_Delete);
        QCOMPARE(Sheet().Count(), 2);
        ExpectDeleting(toTrash, Answer::Yes);
        QTest::keyClick(&Sheet(), Qt::Key_Delete);
        QCOMPARE(Sheet().Count(), 1);
        QVERIFY(!m_folder->Has(u"pageartbox/Linien/neu.jpg"_s));

        m_dialogs->ExpectText(u"Neuer Ordner"_s, u"Knöpfe"_s);
        Press(u"ToolBar_File_NewFolder"_s);
        QVERIFY(m_folder->Has(u"pageartbox/Knöpfe"_s));
        const QString folder =
            u"Sind Sie sicher, dass Sie den gesamten Ordner unwiderruflich löschen möchten?"_s;
        m_folder->Write(u"pageartbox/Linien/tiefer/a.gif"_s, Gif(1, 1));
        ChooseFolder(u"Linien"_s, false);
        ExpectDeleting(folder, Answer::Yes);
        m_dialogs->ExpectMessage(
            u"Löschen"_s,
            u"Der Ordner kann nicht gelöscht werden.\rWarscheinlich ist der Ordner oder eine Datei mit einem "
            "Schreibschutz versehen.\rSie können den Ordner auch im Explorer löschen."_s,
            Answer::Ok, Dialogs::Icon::Critical);
        Press(u"ToolBar_File_KillFolder"_s);
        QVERIFY(m_folder->Has(u"pageartbox/Linien/linie.jpg"_s));
        ChooseFolder(u"Knöpfe"_s, false);
        ExpectDeleting(folder, Answer::Yes);
        Press(u"ToolBar_File_KillFolder"_s);
        QVERIFY(!m_folder->Has(u"pageartbox/Knöpfe"_s));
    }

    void makesALibraryWhereThereIsNone() {
        OpenPage();
        QDir(m_folder->System(u"pageartbox"_s)).removeRecursively();
        m_dialogs->ExpectMessage(u"PageArtBox"_s, u"Legen Sie die Sorvane HTML Editor 3.0 - CD ein!"_s,
                                 Answer::Cancel);
        Open();
        QCOMPARE(Sheet().Count(), 0);
        QCOMPARE(Sheet().height(), 60);
        m_dialogs->ExpectText(u"Neuer Ordner"_s, u"Eigene"_s);
        Press(u"ToolBar_File_NewFolder"_s);
        QVERIFY(m_folder->Has(u"pageartbox/Eigene"_s));
        QCOMPARE(Shared<Frm_PAB>().findChild<QListWidget*>(u"Lvw_Folders"_s)->count(), 1);
        // taken out while the window is open
        QDir(m_folder->System(u"pageartbox"_s)).removeRecursively();
        for (const Answer answer : {Answer::Ok, Answer::Cancel})
            m_dialogs->ExpectMessage(u"PageArtBox"_s, u"Legen Sie die Sorvane HTML Editor 3.0 - CD ein!"_s,
                                     answer);
        Press(u"ToolBar_MainPage"_s);
    }

    void livesThroughHostilePictures() {
        OpenPage();
        const QByteArray jpg = Picture(200, 100, "jpg", Qt::blue);
        QByteArray huge = jpg;
        const qsizetype frame = huge.indexOf(QByteArray::fromHex("ffc0"));
        huge.replace(frame + 5, 4, QByteArray::fromHex("ffdcffdc")); // 65500 x 65500
        m_folder->Write(u"pageartbox/B/a.txt"_s, "Text");
        m_folder->Write(u"pageartbox/B/b gut.jpg"_s, jpg);
        m_folder->Write(u"pageartbox/B/c leer.gif"_s, "");
        m_folder->Write(u"pageartbox/B/d kurz.jpg"_s, jpg.first(jpg.size() / 3));
        m_folder->Write(u"pageartbox/B/e riesig.jpg"_s, huge);
        huge.replace(frame, 9, QByteArray::fromHex("ffc200110827102710")); // 10000 x 10000, progressive
        m_folder->Write(u"pageartbox/B/e stufen.jpg"_s, huge);
        m_folder->Write(u"pageartbox/B/f weit.gif"_s, Gif(16000, 16000));
        m_folder->Write(u"pageartbox/B/g.png"_s, Picture(80, 80, "png", Qt::green));
        m_folder->Write(u"pageartbox/B/h.svg"_s,
                        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
        QFile::link(u"/dev/zero"_s, m_folder->System(u"pageartbox/B/ohne ende.gif"_s));
        QFile::link(m_folder->System(u"pageartbox/B/i.gif"_s), m_folder->System(u"pageartbox/B/i.gif"_s));
        Open();
        ChooseFolder(u"B"_s, true);
        QCOMPARE(Sheet().Count(), 10);
        const QImage shown = Sheet().grab().toImage();
        const auto colorAt = [&](qsizetype index) {
            const QRect frame64 = ClipSheet::Frame(index);
            return QColor(shown.pixel(frame64.center().x(), frame64.top() + 20)); // above the label
        };
        QCOMPARE(colorAt(0), QColor(Qt::white)); // no picture before it
        QVERIFY(colorAt(1).blue() > 200 && colorAt(1).red() < 60);
        // the last good one, faded
        QVERIFY(colorAt(2).red() > 120 && colorAt(2).red() < 240 && colorAt(2).blue() > 240);
        QVERIFY(colorAt(8).green() > 240 && colorAt(8).red() > 120);
        const QString failure =
            u"Die Vorschau kann nicht gestartet werden, da\r\neine notwendige Datei nicht richtig "
            u"registriert "
            "ist.\r\nWarscheinlich sind Sie nicht als Administartor\r\nangemeldet oder haben nicht die "
            "Berechtigung\r\ndiese Datei zu benutzen."_s;
        for (const qsizetype index : {0, 2, 4, 5, 9, 6}) {
            m_dialogs->ExpectMessage(u"Vorschau"_s, failure);
            ClickClip(index, Qt::RightButton);
            QVERIFY(!Loaded<Frm_PABPreView>());
        }
        QCOMPARE(Panels(), u"f weit.gif|B: 16000|H: 16000|GIF"_s);
        // The window goes while pictures are being read.
        ChooseFolder(u"B"_s, false);
        ThumbnailCache::Forget();
        Press(u"ToolBar_MainPage"_s);
        Unload<Frm_PAB>();
    }

    void showsAPictureInFullSize() {
        OpenPage();
        Open();
        m_folder->Write(u"pageartbox/weit.jpg"_s, Picture(9000, 40, "jpg"));
        Press(u"ToolBar_MainPage"_s);
        QTRY_VERIFY(Sheet().IsFilled());
        Driver::InModal(u"Frm_PABPreView"_s, [](QWidget* preview) {
            QCOMPARE(preview->size().expandedTo({30, 200}), QSize(std::max(60, preview->width()), 200));
            const auto* gif = preview->findChild<QLabel*>(u"Gif_PreView"_s);
            QVERIFY(gif->isVisible() && gif->movie()->state() == QMovie::Running);
            QTRY_VERIFY(gif->movie()->currentFrameNumber() == 1);
            QTest::keyClick(preview, Qt::Key_Escape);
        });
        ClickClip(0, Qt::RightButton);
        QVERIFY(!Loaded<Frm_PABPreView>());
        Driver::InModal(u"Frm_PABPreView"_s, [](QWidget* preview) {
            QVERIFY(preview->width() <= preview->screen()->availableGeometry().width());
            QCOMPARE(preview->findChild<QWidget*>(u"Pic_PreView"_s)->width(), 9000);
            QTest::keyClick(preview, Qt::Key_Escape);
        });
        ClickClip(1);
        QTest::keyClick(&Sheet(), Qt::Key_Return);
    }

    // What has been made once comes from the disk, also where a picture has since become unreadable; a
    // picture that has changed is made anew.
    void keepsThumbnailsOnDisk() {
        OpenPage();
        QImage noise(400, 300, QImage::Format_RGB32);
        for (int y = 0; y < 300; ++y)
            for (int x = 0; x < 400; ++x) noise.setPixel(x, y, uint(x * y * 7919) | 0xff000000);
        const QString path = m_folder->System(u"pageartbox/a.png"_s);
        QVERIFY(noise.save(path) && QFileInfo(path).size() > 40'000);
        Open();
        const auto cached = [this] {
            return QDir(m_folder->System(u"cache"_s)).exists() ? [](const QString& folder) {
                int count = 0;
                QDirIterator files(folder, {u"*.png"_s}, QDir::Files, QDirIterator::Subdirectories);
                for (; files.hasNext(); files.next()) ++count;
                return count;
            }(m_folder->System(u"cache"_s)) : 0;
        };
        QTRY_COMPARE(cached(), 1);
        const QImage first = Sheet().grab().toImage();
        ThumbnailCache::Forget();
        Press(u"ToolBar_MainPage"_s);
        QTRY_VERIFY(Sheet().IsFilled());
        QCOMPARE(Sheet().grab().toImage(), first);
        QCOMPARE(Sheet().SizeOf(0), QSize(400, 300));
        QVERIFY(noise.mirrored().scaled(500, 500).save(path));
        Press(u"ToolBar_MainPage"_s);
        QTRY_VERIFY(Sheet().IsFilled());
        QCOMPARE(Sheet().SizeOf(0), QSize(500, 500));
    }
};

REGISTER_TEST_AS(FrmPab, FrmPabTest);
#include "frm_pab_test.moc"

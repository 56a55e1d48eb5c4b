// SPDX-License-Identifier: MIT
// What the clip library decides without a window.
#include "clips/clip_folder.h"
#include "clips/clip_root.h"
#include "clips/clip_sheet.h"
#include "clips/clip_tag.h"
#include "support/folder_test.h"

using Dialogs::Answer;

class ClipsTest : public FolderTest {
    Q_OBJECT

private slots:
    void laysOutSixARow() {
        struct Row {
            qsizetype index;
            QRect frame;
            QPoint label;
        };
        for (const Row& row :
             {Row{0, {28, 13, 64, 64}, {20, 33}}, Row{5, {428, 13, 64, 64}, {420, 33}},
              Row{6, {28, 93, 64, 64}, {20, 113}}, Row{4999, {108, 66653, 64, 64}, {100, 66673}}}) {
            QCOMPARE(ClipSheet::Frame(row.index), row.frame);
            QCOMPARE(ClipSheet::LabelPlace(row.index), row.label);
            QCOMPARE(ClipSheet::Selection(row.index), row.frame.adjusted(-2, -2, 2, 2));
            QCOMPARE(ClipSheet::Thumbnail(row.index, {60, 30}).center(), row.frame.center());
            QCOMPARE(ClipSheet::IndexAt(row.frame.topLeft(), 5000), row.index);
            QCOMPARE(ClipSheet::IndexAt(row.frame.topLeft(), row.index), -1);
        }
        QCOMPARE(ClipSheet::IndexAt({500, 40}, 100), -1);
        struct Sheet {
            qsizetype count;
            int lastRow, height;
            bool scrolls;
        };
        for (const Sheet& sheet : {Sheet{0, -1, 60, false}, Sheet{6, 0, 150, false}, Sheet{24, 3, 420, false},
                                   Sheet{25, 4, 510, true}, Sheet{5000, 833, 75120, true}}) {
            const int lastRow = ClipSheet::LastRow(sheet.count);
            QCOMPARE(lastRow, sheet.lastRow);
            QCOMPARE(ClipSheet::Height(lastRow), sheet.height);
            QCOMPARE(ClipSheet::Scrolls(lastRow), sheet.scrolls);
        }
        // whatever picture is chosen, from wherever the bar stands, it is seen whole
        for (const qsizetype index : {0, 7, 30, 500, 4999}) {
            for (const int value : {0, 3, 90, 833}) {
                const int top = ClipSheet::TopAt(ClipSheet::ValueThatShows(index, value, 340));
                const QRect seen = ClipSheet::Selection(index).translated(0, top);
                QVERIFY2(seen.top() >= 0 && seen.bottom() < 340, qPrintable(QString::number(index)));
            }
        }
    }

    void fitsThumbnailsIntoSixtyPixels() {
        struct Row {
            QSize picture, thumbnail;
        };
        for (const Row& row : {Row{{59, 59}, {59, 59}}, Row{{60, 20}, {60, 20}}, Row{{120, 60}, {60, 30}},
                               Row{{60, 60}, {60, 60}}, Row{{500, 500}, {60, 60}}, Row{{30, 200}, {10, 60}},
                               Row{{100, 150}, {40, 60}}, Row{{1, 1}, {10, 10}}, Row{{9000, 3}, {60, 10}}}) {
            QCOMPARE(ClipSheet::ThumbnailSize(row.picture), row.thumbnail);
        }
        for (const QString& name : {u"a.gif"_s, u"b.JPG"_s, u"c.d.bmp"_s, u"e.CuR"_s, u"f.wmf"_s})
            QVERIFY2(ClipSheet::IsPictureKind(name), qPrintable(name));
        for (const QString& name :
             {u"a.png"_s, u"b.svg"_s, u"c.webp"_s, u"d.jpeg"_s, u"gif"_s, u"e."_s, u"f.txt"_s})
            QVERIFY2(!ClipSheet::IsPictureKind(name), qPrintable(name));
    }

    void writesTagAndBase() {
        QCOMPARE(Clips::ImageTag(u"bilder/a.gif"_s, {20, 300}, false),
                 u"<img src=\"bilder/a.gif\" width=\"20\" height=\"300\">"_s);
        QCOMPARE(Clips::ImageTag(u"a.gif"_s, {1, 2}, true),
                 u"<img src=\"a.gif\" width=\"1\" height=\"2\" />"_s);
        QCOMPARE(Clips::ImageTag(u"a.txt"_s, {}, true), u"<img src=\"a.txt\" />"_s);
        QCOMPARE(Clips::BaseOf(u"\\web\\seite.htm"_s), u"\\web\\"_s);
        QCOMPARE(Clips::BaseOf({}), QString());
    }

    // Right in a place, in any case, and nowhere deeper; the disc is asked for until it is there or given up.
    void findsTheLibrary() {
        QDir().mkpath(m_folder->System(u"e/Grafik/pageartbox"_s));
        QCOMPARE(Clips::FindClipRoot({m_folder->Path(u"e"_s), m_folder->Path(u"fehlt"_s)}), QString());
        QDir().mkpath(m_folder->System(u"f/PAGEArtBox"_s));
        QCOMPARE(Clips::FindClipRoot({m_folder->Path(u"e"_s), m_folder->Path(u"f"_s)}),
                 m_folder->Path(u"f\\PAGEArtBox"_s));
        const auto expectDisc = [this](Answer answer) {
            m_dialogs->ExpectMessage(u"PageArtBox"_s, u"Legen Sie die Sorvane HTML Editor 3.0 - CD ein!"_s,
                                     answer, Dialogs::Icon::Exclamation);
        };
        expectDisc(Answer::Ok);
        expectDisc(Answer::Cancel);
        QCOMPARE(Clips::LocateClipRoot(), u"[!NOCLIPS!]"_s);
        // a read-only installation
        Files::SetProgramDirectory(m_folder->Path(u"e"_s), m_folder->Path(u"share"_s));
        m_folder->Write(u"share/pageartbox/a.gif"_s, "GIF");
        QCOMPARE(Clips::LocateClipRoot(), m_folder->Path(u"share\\pageartbox"_s));
        m_folder->Write(u"e/PageArtBox/a.gif"_s, "GIF");
        QCOMPARE(Clips::LocateClipRoot(), m_folder->Path(u"e\\PageArtBox"_s));
    }

    void listsAndRemovesFolders() {
        for (const QString& name : {u"b10.gif"_s, u"B2.gif"_s, u"a.txt"_s, u"Ä.gif"_s})
            m_folder->Write(u"lib/"_s + name, "x");
        QCOMPARE(Clips::FilesOf(m_folder->Path(u"lib"_s)),
                 QStringList({u"Ä.gif"_s, u"a.txt"_s, u"B2.gif"_s, u"b10.gif"_s}));
        QVERIFY(!Clips::FilesOf(m_folder->Path(u"fehlt"_s)));
        for (const QString& name : {u""_s, u" "_s, u".."_s, u"a/b"_s, u"a\\b"_s})
            QVERIFY(!Clips::IsFolderName(name));
        QVERIFY(Clips::IsFolderName(u"Neuer Ordner"_s));

        // a link stays, and so does what it leads to, in a folder that goes, too
        m_folder->Write(u"draussen/wichtig.gif"_s, "x");
        QFile::link(m_folder->System(u"draussen"_s), m_folder->System(u"lib/Verweis"_s));
        QVERIFY(!Clips::RemoveClipFolder(m_folder->Path(u"lib\\Verweis"_s)));
        m_folder->Write(u"lib/Alt/eins.gif"_s, "x");
        QDir().mkpath(m_folder->System(u"lib/Alt/tiefer"_s));
        QVERIFY(!Clips::RemoveClipFolder(m_folder->Path(u"lib\\Alt"_s)));
        QVERIFY(m_folder->Has(u"lib/Alt/eins.gif"_s));
        QDir().rmdir(m_folder->System(u"lib/Alt/tiefer"_s));
        QFile::link(m_folder->System(u"draussen"_s), m_folder->System(u"lib/Alt/Verweis"_s));
        QVERIFY(Clips::RemoveClipFolder(m_folder->Path(u"lib\\Alt"_s)));
        QVERIFY(!m_folder->Has(u"lib/Alt"_s) && m_folder->Has(u"draussen/wichtig.gif"_s));
    }
};

REGISTER_TEST_AS(Clips, ClipsTest);
#include "clips_test.moc"

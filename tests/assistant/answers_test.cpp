// SPDX-License-Identifier: MIT
#include "assistant/answers.h"

#include "platform/literals.h"
#include "shell/tips.h"
#include "state/global.h"
#include "state/lists.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

using Assistant::AnswerAbout;
using Assistant::StepTip;
using Assistant::TipStep;

class Answers : public QObject {
    Q_OBJECT

private slots:
    void answersAboutTags_data() {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<int>("animation"); // 0: nothing is said
        QTest::addColumn<QString>("text");
        const QString unknown =
            u"Diesen Tag kenne ich nicht. Überprüfen Sie, ob Sie ihn richtig geschrieben haben. "
            "Falscher Tag: <%1>"_s;
        QTest::newRow("nothing marked") << QString() << 2
                                        << u"Bitte markieren Sie einen Tag ohne die Klammern und klicken Sie "
                                           u"noch einmal auf Hilfe oder geben Sie "
                                           "im Textfeld einen Tag ein."_s;
        QTest::newRow("lower case finds upper case")
            << u"table"_s << 1 << u"Setzt eine Tabelle: <TR> & Zellen."_s;
        QTest::newRow("upper case finds lower case") << u"BR"_s << 1 << u"Bricht um. Straße."_s;
        QTest::newRow("an entry over two lines") << u"p"_s << 1 << u"Ein Absatz auf zwei Zeilen."_s;
        QTest::newRow("known without an entry") << u"hr"_s << 0 << QString();
        QTest::newRow("one stray character") << u"table>"_s << 0 << QString();
        QTest::newRow("two stray characters") << u"table>x"_s << 2 << unknown.arg(u"table>x"_s);
        QTest::newRow("brackets are part of the text") << u"<p>"_s << 2 << unknown.arg(u"<p>"_s);
        QTest::newRow("unknown") << u"foo%1"_s << 2 << unknown.arg(u"foo%1"_s);
        QTest::newRow("a closing tag has no entry of its own") << u"/table"_s << 0 << QString();
    }
    void answersAboutTags() {
        QFETCH(QString, tag);
        QFETCH(int, animation);
        QFETCH(QString, text);
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"taglist.lst"_s, "table\r\nbr\r\np\r\nhr\r\nlast\r\n");
        folder.Write(u"assistant.hlp"_s, "<H-TABLE- Setzt eine Tabelle: <TR> & Zellen.<E-\r\n"
                                         "<h-br- Bricht um. Stra\xdf"
                                         "e.<e-\r\n<h-p- Ein Absatz auf\r\nzwei Zeilen.<e-\r\n");
        QVERIFY(Lists::LoadTagList());
        const auto answer = AnswerAbout(Lists::ReadLinesJoined(u"assistant.hlp"_s).value(), tag);
        QCOMPARE(answer ? answer->animation : 0, animation);
        QCOMPARE(answer ? answer->text : QString(), text);
    }

    // Every tag of the shipped list is answered or passed over, none is called unknown; without the help file
    // none is explained.
    void theShippedHelpFitsTheShippedTags() {
        const ProgramFolder folder;
        QVERIFY(Lists::LoadTagList());
        const QString help = Lists::ReadLinesJoined(u"assistant.hlp"_s).value();
        int explained = 0;
        const QStringList tags =
            QString::fromLatin1(folder.Read(u"taglist.lst"_s)).split(u"\r\n"_s, Qt::SkipEmptyParts);
        for (const QString& tag : tags) {
            const auto answer = AnswerAbout(help, tag);
            if (!answer) continue;
            ++explained;
            QVERIFY2(answer->animation == 1 && answer->text.size() > 10, qPrintable(tag));
            QVERIFY2(!answer->text.contains(u"<h-") && !answer->text.contains(u"<e-"), qPrintable(tag));
            QVERIFY(!AnswerAbout(QString(), tag));
        }
        QVERIFY(explained > tags.size() * 9 / 10);
    }

    void tipsGoRound() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"tips.lst"_s, "eins\r\nzwei\r\ndrei\r\n");
        QVERIFY(Tips::LoadTips());
        Global::CurrentTip = 0;
        QStringList shown;
        for (int i = 0; i < 4; ++i) shown << StepTip(TipStep::Next);
        QCOMPARE(shown, QStringList({u"eins"_s, u"zwei"_s, u"drei"_s, u"eins"_s}));
        QCOMPARE(StepTip(TipStep::Back), u"drei"_s);
        QCOMPARE(StepTip(TipStep::Back), u"zwei"_s);
        QCOMPARE(Global::CurrentTip, 2);
    }

    void aWildTipNumberWraps_data() {
        QTest::addColumn<int>("number");
        for (const int number : {32767, 101, 4, -1, -32768}) QTest::addRow("%d", number) << number;
    }
    void aWildTipNumberWraps() {
        QFETCH(int, number);
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"tips.lst"_s, "eins\r\nzwei\r\ndrei\r\n");
        QVERIFY(Tips::LoadTips());
        Global::CurrentTip = static_cast<std::int16_t>(number);
        QCOMPARE(StepTip(TipStep::Next), u"eins"_s);
        Global::CurrentTip = static_cast<std::int16_t>(number);
        QCOMPARE(StepTip(TipStep::Back), u"drei"_s);
        folder.Write(u"tips.lst"_s, "");
        QVERIFY(Tips::LoadTips());
        QVERIFY(StepTip(TipStep::Next).isEmpty() && StepTip(TipStep::Back).isEmpty());
    }
};

REGISTER_TEST(Answers);
#include "answers_test.moc"

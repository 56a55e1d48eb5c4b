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
        const auto row = [](const char* name, const QString& tag, int animation, const QString& text) {
            QTest::newRow(name) << tag << animation << text;
        };
        row("lower case finds upper case", u"table"_s, 1, u"Setzt eine Tabelle: <TR> & Zellen."_s);
        row("upper case finds lower case", u"BR"_s, 1, u"Bricht um. Straße."_s);
        row("an entry over two lines", u"p"_s, 1, u"Ein Absatz auf zwei Zeilen."_s);
        row("known without an entry", u"hr"_s, 0, QString());
        row("one stray character", u"table>"_s, 0, QString());
        row("two stray characters", u"table>x"_s, 2, unknown.arg(u"table>x"_s));
        row("brackets are part of the text", u"<p>"_s, 2, unknown.arg(u"<p>"_s));
        row("unknown", u"foo%1"_s, 2, unknown.arg(u"foo%1"_s));
        row("a closing tag has no entry of its own", u"/table"_s, 0, QString());
    }
    void answersAboutTags() {
        QFETCH(QString, tag);
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"taglist.lst"_s, "table\r\nbr\r\np\r\nhr\r\nlast\r\n");
        folder.Write(u"assistant.hlp"_s, "<H-TABLE- Setzt eine Tabelle: <TR> & Zellen.<E-\r\n"
                                         "<h-br- Bricht um. Stra\xdf"
                                         "e.<e-\r\n<h-p- Ein Absatz auf\r\nzwei Zeilen.<e-\r\n");
        QVERIFY(Lists::LoadTagList());
        const auto answer = AnswerAbout(Lists::ReadLinesJoined(u"assistant.hlp"_s).value(), tag);
        QTEST(answer ? answer->animation : 0, "animation");
        QTEST(answer ? answer->text : QString(), "text");
    }

    // No tag of the shipped list is called unknown, and hardly one stays without an answer.
    void theShippedHelpFitsTheShippedTags() {
        const ProgramFolder folder;
        QVERIFY(Lists::LoadTagList());
        const QString help = Lists::ReadLinesJoined(u"assistant.hlp"_s).value();
        const QStringList tags = QString::fromLatin1(folder.Read(u"taglist.lst"_s)).split(u"\r\n"_s);
        int explained = 0;
        for (const QString& tag : tags) {
            const auto answer = tag.isEmpty() ? std::nullopt : AnswerAbout(help, tag);
            if (!answer) continue;
            ++explained;
            QVERIFY2(answer->animation == 1 && answer->text.size() > 10, qPrintable(tag));
            QVERIFY2(!answer->text.contains(u"<h-") && !answer->text.contains(u"<e-"), qPrintable(tag));
        }
        QVERIFY(explained > tags.size() * 9 / 10);
    }

    // Whatever number the settings held.
    void tipsGoRound() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"tips.lst"_s, "eins\r\nzwei\r\ndrei\r\n");
        QVERIFY(Tips::LoadTips());
        const auto step = [](int from, TipStep direction) {
            Global::CurrentTip = static_cast<std::int16_t>(from);
            return StepTip(direction);
        };
        QCOMPARE(step(0, TipStep::Next), u"eins"_s);
        QCOMPARE(step(1, TipStep::Next), u"zwei"_s);
        QCOMPARE(step(3, TipStep::Back), u"zwei"_s);
        QCOMPARE(Global::CurrentTip, 2);
        for (const int wild : {32767, 101, 4, -1, -32768}) {
            QCOMPARE(step(wild, TipStep::Next), u"eins"_s);
            QCOMPARE(step(wild, TipStep::Back), u"drei"_s);
        }
        folder.Write(u"tips.lst"_s, "");
        QVERIFY(Tips::LoadTips());
        QVERIFY(step(5, TipStep::Next).isEmpty() && step(5, TipStep::Back).isEmpty());
    }
};

REGISTER_TEST(Answers);
#include "answers_test.moc"

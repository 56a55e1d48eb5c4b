// SPDX-License-Identifier: MIT
// Umlauts, comments, packing and the taking out of tags: each against the same work done step by step, one
// replacement a round, on random texts.
#include "platform/literals.h"
#include "platform/text.h"
#include "support/test.h"
#include "texttools/code_packing.h"
#include "texttools/spelling.h"
#include "texttools/umlaut_correction.h"

#include <QRandomGenerator>

namespace {

constexpr int RandomTexts = 200;

QString RandomText(QRandomGenerator& random, const QStringList& pieces) {
    QString text;
    for (int i = random.bounded(40); i > 0; --i) text += pieces[random.bounded(pieces.size())];
    return text;
}

// One replacement of each row a round, from a place that moves on by one each round.
QString StepByStep(QString text, const QStringList& from, const QStringList& to) {
    const qsizetype rounds = text.size();
    for (qsizetype i = 1; i <= rounds; ++i) {
        for (qsizetype row = 0; row < from.size(); ++row) {
            const qsizetype at = Text::Find(text, from[row], i);
            if (at > 0) text.replace(at - 1, from[row].size(), to[row]);
        }
    }
    return text;
}

CodePacking::Stripped StripStepByStep(QString text) {
    const qsizetype rounds = text.size();
    for (qsizetype i = 1; i <= rounds; ++i) {
        const qsizetype comment = Text::Find(text, u"<!--", i);
        if (comment == 0) break;
        i = comment;
        const qsizetype tag = comment > 1 ? Text::FindBack(text, u"<", comment - 1) : 0;
        if (tag > 0 &&
            (text.mid(tag - 1, 6).toUpper() == u"<STYLE" || text.mid(tag - 1, 7).toUpper() == u"<SCRIPT")) {
            continue;
        }
        const qsizetype end = Text::Find(text, u"-->", comment);
        if (end == 0) return {text, false};
        text.remove(comment - 1, end + 3 - comment);
    }
    return {text, true};
}

QString PackStepByStep(QString text) {
    for (const QString& piece : {u"\r\n"_s, u"\t"_s}) {
        const qsizetype rounds = text.size();
        for (qsizetype i = 1; i <= rounds; ++i) {
            const qsizetype at = Text::Find(text, piece, i);
            if (at > 0) text.replace(at - 1, piece.size(), u" "_s);
        }
    }
    while (text.contains(u"  ")) text.replace(text.indexOf(u"  "), 2, u" "_s);
    return text;
}

Spelling::Plain TagsStepByStep(QString text) {
    const qsizetype rounds = text.size();
    for (qsizetype i = 1; i <= rounds; ++i) {
        const qsizetype tag = Text::Find(text, u"<", i);
        if (tag == 0) break;
        const qsizetype end = Text::Find(text, u">", tag);
        if (end == 0) return {text.first(tag - 1), false};
        text.remove(tag - 1, end - tag + 1);
    }
    return {text, true};
}

} // namespace

class RewritingTest : public QObject {
    Q_OBJECT

private slots:
    void umlauts() {
        const QStringList characters{u"ä"_s, u"ö"_s, u"ü"_s, u"Ä"_s, u"Ö"_s, u"ß"_s};
        const QStringList entities{u"&auml;"_s, u"&ouml;"_s, u"&uuml;"_s,
                                   u"&Auml;"_s, u"&Ouml;"_s, u"&szlig;"_s};
        QRandomGenerator random(7);
        for (int i = 0; i < RandomTexts; ++i) {
            const QString plain =
                RandomText(random, characters + QStringList{u"&"_s, u"a"_s, u"\r\n"_s, u"uml;"_s});
            QCOMPARE(UmlautCorrection::Encode(plain), StepByStep(plain, characters, entities));
            const QString coded = RandomText(
                random, entities + QStringList{u"&Uuml;"_s, u"&"_s, u"&a"_s, u"uml;"_s, u"&AUML;"_s});
            QCOMPARE(UmlautCorrection::Decode(coded), StepByStep(coded, entities + QStringList{u"&Uuml;"_s},
                                                                 characters + QStringList{u"Ü"_s}));
        }
    }

    // The first one swells by as many rounds as characters follow it, with itself; the others stay.
    void capitalUe() {
        QCOMPARE(UmlautCorrection::Encode(u"Ü"_s), u"&Üuml;"_s);
        QCOMPARE(UmlautCorrection::Encode(u"aÜbÜ"_s), u"a&&&Üuml;uml;uml;bÜ"_s);
        QCOMPARE(UmlautCorrection::GrowthOfCapitalUe(u"aÜbÜ"_s), 15);
        QCOMPARE(UmlautCorrection::GrowthOfCapitalUe(u"äüß"_s), 0);
        QCOMPARE(UmlautCorrection::Decode(u"&Üuml;"_s), u"&Üuml;"_s);
    }

    void comments() {
        QRandomGenerator random(11);
        const QStringList pieces{u"<!--"_s,  u"-->"_s,     u"<style>"_s,   u"<STY"_s, u"LE>"_s,
                                 u"<b>"_s,   u"a"_s,       u"\r\n"_s,      u"<"_s,    u"<!-- x -->"_s,
                                 u"<!-->"_s, u"<Script"_s, u"</script>"_s, u">"_s};
        for (int i = 0; i < 10 * RandomTexts; ++i) {
            const QString text = RandomText(random, pieces);
            const auto [stripped, whole] = CodePacking::WithoutComments(text);
            const auto [expected, expectedWhole] = StripStepByStep(text);
            QCOMPARE(stripped, expected);
            QCOMPARE(whole, expectedWhole);
        }
        QCOMPARE(CodePacking::WithoutComments(u"<!--a--><!--b-->"_s).text, u"<!--b-->"_s);
        QCOMPARE(CodePacking::WithoutComments(u"<script>a<b<!-- x -->"_s).text, u"<script>a<b"_s);
    }

    void packing() {
        QRandomGenerator random(13);
        for (int i = 0; i < RandomTexts; ++i) {
            const QString text = RandomText(random, {u" "_s, u"\t"_s, u"\r\n"_s, u"a"_s, u"\r"_s, u"  "_s});
            QCOMPARE(CodePacking::InOneLine(text), PackStepByStep(text));
        }
    }

    void tags() {
        QRandomGenerator random(17);
        for (int i = 0; i < 10 * RandomTexts; ++i) {
            const QString text = RandomText(random, {u"<b>"_s, u"<"_s, u">"_s, u"a"_s, u"<html>"_s,
                                                     u"<br/>"_s, u" "_s, u"<i>"_s, u"<b>x</b>"_s, u"<p>"_s});
            const auto [plain, whole] = Spelling::WithoutTags(text);
            const auto [expected, expectedWhole] = TagsStepByStep(text);
            QCOMPARE(plain, expected);
            QCOMPARE(whole, expectedWhole);
        }
    }

    void spelling() {
        const Spelling::WordList list(u"Anfang Haus Webseite grün haus2 Ende\r\nzweite Zeile hier "_s);
        QCOMPARE(list.UpperBound(), 5);
        // the first word is never found; the last one of the line runs into the next line; digits are no
        // words
        QCOMPARE(Spelling::Unknown(
                     u"Anfang HAUS\tWeb-Seite\r\nGRÜN, (Haus) haus2 Ende Maus Maus &amp; hier"_s, list),
                 (QStringList{u"Anfang"_s, u"Ende"_s, u"Maus"_s, u"Maus"_s, u"amp"_s}));
        int calls = 0;
        Spelling::Unknown(u"a b c d e f g h"_s, list, [&](int) { return ++calls < 3; });
        QCOMPARE(calls, 3);
    }
};

REGISTER_TEST_AS(Rewriting, RewritingTest);

#include "rewriting_test.moc"

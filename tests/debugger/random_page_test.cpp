// SPDX-License-Identifier: MIT
// Random pages of fragments: the checks must find, row by row, what the literal ones find.
#include "debugger/page_check.h"
#include "literal_check.h"
#include "report_text.h"
#include "support/test_registry.h"

#include <QRandomGenerator>

class RandomPage : public QObject {
    Q_OBJECT

private slots:
    void FastAndLiteralAgree_data();
    void FastAndLiteralAgree();
};

namespace {

const QString KnownTags =
    QStringLiteral("-b-/b-i-/i-br-/br-p-/p-!DOCTYPE-/!DOCTYPE-style-/style-h-1-/h-1-a-/a");
const QString NoClosing = QStringLiteral("ßbrßß!doctypeß");

const QStringList PageFragments = {u"<"_s,
                                   u">"_s,
                                   u" "_s,
                                   u"/"_s,
                                   u"-"_s,
                                   u"--"_s,
                                   u"!"_s,
                                   u"\""_s,
                                   u"\r\n"_s,
                                   u"\t"_s,
                                   u"<!--"_s,
                                   u"-->"_s,
                                   u"<!-- a -->"_s,
                                   u"<!-->"_s,
                                   u"<b>"_s,
                                   u"</b>"_s,
                                   u"<B>"_s,
                                   u"</B >"_s,
                                   u"<i>"_s,
                                   u"</i>"_s,
                                   u"<br/>"_s,
                                   u"<br />"_s,
                                   u"</br>"_s,
                                   u"<p\r\nx>"_s,
                                   u"<p\tx>"_s,
                                   u"</>"_s,
                                   u"<>"_s,
                                   u"<xy>"_s,
                                   u"</a>"_s,
                                   u"<h-1>"_s,
                                   u"<b-/b>"_s,
                                   u"<ß>"_s,
                                   u"<br\u00dfß!doctype>"_s,
                                   u"<<[NOTHING]->"_s,
                                   u"<<[nothing]->"_s,
                                   u"</<[Nothing]->"_s,
                                   u"Wort"_s,
                                   u"<!DOCTYPE html>"_s,
                                   u"<style>"_s,
                                   u"</style>"_s,
                                   u"<STYLE "_s,
                                   u"</Style"_s,
                                   u"style=\""_s,
                                   u"\u017ftyle=\""_s,
                                   u"a{b:c;}"_s,
                                   u"b: 2;"_s,
                                   u"<script>a<b \"</script>"_s,
                                   u"c:;d:3;;e:"_s};

const QStringList StyleFragments = {
    u":"_s,         u";"_s,       u"{"_s,           u"}"_s,     u" "_s,     u"a"_s,    u"12"_s,
    u"-5"_s,        u"0"_s,       u"1.50"_s,        u".5"_s,    u"0.5"_s,   u"12px"_s, u"12345678"_s,
    u"/"_s,         u"*"_s,       u"/*"_s,          u"*/"_s,    u"/*/"_s,   u"\r\n"_s, u"a{b:c;}"_s,
    u"a{b:c}"_s,    u"a:hover"_s, u"color: red;"_s, u"x:12;"_s, u":   ;"_s, u":;"_s,   u";;"_s,
    u"@media x{"_s, u"}}"_s,      u"+3"_s,          u"\t"_s};

QString RandomText(QRandomGenerator& random, const QStringList& fragments) {
    QString text;
    for (quint32 count = random.bounded(30); count > 0; --count)
        text += fragments[random.bounded(fragments.size())];
    return text;
}

QString Shown(const Debugger::PageReport& report) {
    return report.caption.value_or(u"no caption"_s) + u'\n' + RowTexts(report).join(u'\n');
}

} // namespace

void RandomPage::FastAndLiteralAgree_data() {
    QTest::addColumn<QString>("extension");
    QTest::addColumn<int>("accuracy");
    QTest::newRow("page") << u"htm"_s << 100;
    QTest::newRow("page, small steps left out") << u"htm"_s << 98;
    QTest::newRow("page, large steps left out") << u"htm"_s << 70;
    QTest::newRow("style sheet") << u"css"_s << 100;
}

void RandomPage::FastAndLiteralAgree() {
    QFETCH(QString, extension);
    QFETCH(int, accuracy);
    Debugger::PageOptions options;
    options.showReport = true;
    options.accuracy = accuracy;
    options.extension = extension;
    const Debugger::TagLists lists(KnownTags, NoClosing);
    const LiteralCheck::ListStrings strings{KnownTags, NoClosing};
    const bool sheet = extension == u"css";
    // More rounds can be asked for when a check has changed.
    const int rounds = qEnvironmentVariableIsSet("SORVANE_RANDOM_ROUNDS")
                           ? qEnvironmentVariableIntValue("SORVANE_RANDOM_ROUNDS")
                           : 3000;
    QRandomGenerator random(20240229);
    for (int round = 0; round < rounds; ++round) {
        QString text = RandomText(random, sheet ? StyleFragments : PageFragments);
        // Half of the pages hold style rules in the midst of them.
        if (!sheet && random.bounded(2) == 0) {
            text.insert(random.bounded(text.size() + 1), RandomText(random, StyleFragments));
        }
        const Debugger::PageReport fast = Debugger::CheckPage(text, options, lists);
        const Debugger::PageReport literal = LiteralCheck::CheckPage(text, options, strings);
        if (fast.rows != literal.rows || fast.counts != literal.counts || fast.caption != literal.caption) {
            QFAIL(qPrintable(u"text: %1\nfast: %2\nliteral: %3"_s.arg(text, Shown(fast), Shown(literal))));
        }
    }
}

REGISTER_TEST(RandomPage);
#include "random_page_test.moc"

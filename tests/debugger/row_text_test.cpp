// SPDX-License-Identifier: MIT
#include "debugger/row_text.h"

#include "debugger/report_model.h"
#include "debugger/tag_spans.h"
#include "platform/text.h"
#include "support/test_registry.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace Debugger;

class RowText : public QObject {
    Q_OBJECT

private slots:
    void showsAnyTextInOneLine() {
        QCOMPARE(OneLine(u"     <\r\nb\tc\nd\u2028e>", 100), u"     < b c d e>"_s);
        QCOMPARE(OneLine(u"abcdef", 6), u"abcdef"_s);
        QCOMPARE(OneLine(u"abcdef", 5), u"abcde…"_s);
    }

    // What begins like markup would be read as such.
    void writesTips() {
        QCOMPARE(TipText(u"     Der Tag <b> wurde & so\r\nweiter"),
                 u"<p>Der Tag &lt;b&gt; wurde &amp; so weiter</p>"_s);
        QVERIFY(TipText(QString(100'000, u'<')).size() < 10'000);
        QString words = TipText(QString(QString(120, u'x') + u" kurz"_s));
        QCOMPARE(words.count(QChar(0x200B)), 2);
        QCOMPARE(words.remove(QChar(0x200B)), u"<p>"_s + QString(120, u'x') + u" kurz</p>"_s);
        const QString pairs =
            TipText(QString(u"x"_s + u"\U0001F41D"_s.repeated(60))); // no break inside a character
        QVERIFY(pairs.contains(QChar(0x200B)) && !pairs.contains(u"\xD83D\u200B"_s));
    }

    void findsTags() {
        const auto tags = [](const QString& text) {
            QStringList found;
            for (const TagSpan& tag : TagSpans(text)) found << text.sliced(tag.start, tag.length);
            return found;
        };
        QCOMPARE(tags(u"a > b"_s), QStringList());
        QCOMPARE(tags(u"<a><b c\r\n=d></b>"_s), (QStringList{u"<a"_s, u"<b c\r\n=d"_s, u"</b"_s}));
        QCOMPARE(tags(u"<a <b> c>"_s), QStringList{u"<a <b"_s});
        QCOMPARE(tags(u"<a><b <c"_s), QStringList{u"<a"_s});
    }

    void modelShowsTheRows() {
        ReportModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        const std::deque<ReportRow> rows{{ReportIcon::Info, u"HTML"_s, std::nullopt, 0},
                                         {ReportIcon::Error, u"     Tag\r\n<q>"_s, u"q"_s, 12}};
        model.Replace(rows);
        model.Replace(rows);
        QCOMPARE(resets.count(), 1);
        const auto at = [&](int row, int column, int role) {
            return model.index(row, column).data(role).toString();
        };
        QCOMPARE(at(1, 0, Qt::DisplayRole), u"     Tag\r\n<q>"_s);
        QCOMPARE(at(1, 0, ReportModel::IconRole), u"Error3"_s);
        QCOMPARE(at(1, 2, Qt::DisplayRole), u"12"_s);
        QCOMPARE(at(0, 2, Qt::DisplayRole), QString());
        QCOMPARE(at(0, 0, Qt::AccessibleTextRole), u"Hinweis: HTML"_s);
        QCOMPARE(at(1, 0, Qt::AccessibleTextRole), u"Fehler: Tag <q>"_s);
    }
};

REGISTER_TEST(RowText);
#include "row_text_test.moc"

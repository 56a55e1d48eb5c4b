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
        QCOMPARE(OneLine(u"     unbekannter Tag: <\r\nb\tc\nd\u2028e>", 100),
                 u"     unbekannter Tag: < b c d e>"_s);
        QCOMPARE(OneLine(u"abcdef", 6), u"abcdef"_s);
        QCOMPARE(OneLine(u"abcdef", 5), u"abcde…"_s);
        QCOMPARE(OneLine(QString(3'000'000, u'x'), 400).size(), 401);
    }

    void writesTips() {
        // a tip that begins like markup would be read as such
        QCOMPARE(TipText(u"     Der Tag <b> wurde & so\r\nweiter"),
                 u"<p>Der Tag &lt;b&gt; wurde &amp; so weiter</p>"_s);
        QString words = TipText(QString(QString(120, u'x') + u" kurz"_s));
        QCOMPARE(words.count(QChar(0x200B)), 2);
        QCOMPARE(words.remove(QChar(0x200B)), u"<p>"_s + QString(120, u'x') + u" kurz</p>"_s);
        QVERIFY(TipText(QString(100'000, u'<')).size() < 10'000);
        const QString pairs = TipText(u"\U0001F41D"_s.repeated(60)); // no break inside a character
        QCOMPARE(QString(pairs).remove(QChar(0x200B)), u"<p>"_s + u"\U0001F41D"_s.repeated(60) + u"</p>"_s);
        QVERIFY(!pairs.contains(u"\xD83D\u200B"_s));
    }

    void selectsBehindThePlace() {
        const auto selected = [](const QString& text, const ReportRow& row) {
            const auto selection = SelectionOf(row);
            return selection ? text.sliced(selection->start, selection->length) : u"(nothing)"_s;
        };
        const auto row = [](std::optional<QString> marker, qsizetype position) {
            return ReportRow{ReportIcon::Error, u"x"_s, std::move(marker), position};
        };
        QCOMPARE(selected(u"ab</br>"_s, row(u"/br"_s, 3)), u"/br"_s);
        QCOMPARE(selected(u"a:12;"_s, row(u"12"_s, 2)), u"12"_s);
        QCOMPARE(selected(u"a:;"_s, row(u""_s, 2)), u""_s);
        QCOMPARE(selected(u"a:;"_s, row(std::nullopt, 0)), u"(nothing)"_s);
        QCOMPARE(selected(u"a:;"_s, row(u"a"_s, 0)), u"(nothing)"_s);
    }

    void findsTags_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("tags");
        QTest::newRow("none") << u"a > b"_s << QStringList();
        QTest::newRow("page") << u"<a><b c\r\n=d></b>"_s << QStringList{u"<a"_s, u"<b c\r\n=d"_s, u"</b"_s};
        QTest::newRow("tag in a tag") << u"<a <b> c>"_s << QStringList{u"<a <b"_s};
        QTest::newRow("without end") << u"<a><b <c"_s << QStringList{u"<a"_s};
    }
    void findsTags() {
        QFETCH(QString, text);
        QStringList tags;
        for (const TagSpan& tag : TagSpans(text)) tags << text.sliced(tag.start, tag.length);
        QTEST(tags, "tags");
    }

    void modelShowsTheRows() {
        ReportModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        const std::deque<ReportRow> rows{{ReportIcon::Info, u"HTML"_s, std::nullopt, 0},
                                         {ReportIcon::Error, u"     Tag\r\n<q>"_s, u"q"_s, 12},
                                         {ReportIcon::None, u"     Summe: 1"_s, std::nullopt, 0}};
        model.Replace(rows);
        model.Replace(rows);
        QCOMPARE(resets.count(), 1);
        const auto at = [&](int row, int column, int role) {
            return model.index(row, column).data(role).toString();
        };
        QCOMPARE(at(1, 0, Qt::DisplayRole), u"     Tag\r\n<q>"_s);
        QCOMPARE(at(1, 0, ReportModel::IconRole), u"Error3"_s);
        QCOMPARE(at(2, 0, ReportModel::IconRole), QString());
        QCOMPARE(at(1, 1, Qt::DisplayRole), QString());
        QCOMPARE(at(1, 2, Qt::DisplayRole), u"12"_s);
        QCOMPARE(at(0, 2, Qt::DisplayRole), QString());
        QCOMPARE(at(0, 0, Qt::AccessibleTextRole), u"Hinweis: HTML"_s);
        QCOMPARE(at(1, 0, Qt::AccessibleTextRole), u"Fehler: Tag <q>"_s);
        model.Replace({});
        QCOMPARE(model.rowCount(), 0);
    }
};

REGISTER_TEST(RowText);
#include "row_text_test.moc"

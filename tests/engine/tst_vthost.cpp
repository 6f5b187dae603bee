// vthost as a user and a script see it: listing, calls, exit codes, JSON.

#include <QtTest>

namespace {

struct Run {
    int code = -1;
    QByteArray out;
    QByteArray err;
};

Run vthost(const QStringList& args)
{
    QProcess p;
    p.start(VT_VTHOST_PATH, args);
    Run r;
    if (!p.waitForFinished(60000)) {
        p.kill();
        p.waitForFinished();
        return r;
    }
    r.code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    r.out = p.readAllStandardOutput();
    r.err = p.readAllStandardError();
    return r;
}

QJsonValue jsonLine(const QByteArray& line)
{
    return QJsonDocument::fromJson("[" + line.trimmed() + "]").array().first();
}

} // namespace

class TestVthost : public QObject {
    Q_OBJECT

private slots:
    void listShowsRecords()
    {
        const Run r = vthost({"list"});
        QCOMPARE(r.code, 0);
        const QList<QByteArray> lines = r.out.trimmed().split('\n');
        QVERIFY(lines.contains("ScanEscape 1 3 direct 1,1,4"));
        QVERIFY(lines.contains("PerCycleValue 5 5 direct 4*,4*,1,1,4"));
        QVERIFY(lines.contains("ThdWeight 1 1 direct 1"));

        const Run j = vthost({"list", "--json"});
        QCOMPARE(j.code, 0);
        const QJsonArray all = QJsonDocument::fromJson(j.out).array();
        QCOMPARE(all.size(), lines.size());
        QJsonObject timing;
        for (const QJsonValue& v : all)
            if (v["name"] == "PerCycleTiming")
                timing = v.toObject();
        QCOMPARE(timing["min"].toInt(), 2);
        QCOMPARE(timing["max"].toInt(), 4);
        QCOMPARE(timing["factory"].toBool(), false);
        QCOMPARE(timing["argTypes"].toArray(), (QJsonArray{4, 1, 1, 4}));
        QCOMPARE(timing["argFlags"].toArray(), (QJsonArray{1, 0, 0, 0}));
    }

    void exitCodes_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("out");
        QTest::newRow("result") << QStringList{"call", "ParseEscape", R"(["a b,c"])"} << 0
                                << QByteArray(R"(["a","b","c"])");
        QTest::newRow("empty result") << QStringList{"call", "ParseEscape", R"([" ,"])"} << 0
                                      << QByteArray("[]");
        QTest::newRow("no result") << QStringList{"call", "ThdWeight", R"(["x"])"} << 0
                                   << QByteArray("null");
        QTest::newRow("options anywhere")
            << QStringList{"call", "--config-dir", QDir::tempPath() + "/vthost-test", "ParseEscape",
                           R"(["a"])"}
            << 0 << QByteArray(R"(["a"])");
        QTest::newRow("no dialog opened, answer unused")
            << QStringList{"call", "ParseEscape", R"(["a b"])", "--answer", "accept"} << 0
            << QByteArray(R"(["a","b"])");
        QTest::newRow("argument error with an answer")
            << QStringList{"call", "TableDialog", R"(["x"])", "--answer", "accept"} << 3 << QByteArray("null");
        QTest::newRow("unknown function") << QStringList{"call", "Nope"} << 3 << QByteArray("null");
        QTest::newRow("too many arguments") << QStringList{"call", "ThdWeight", R"(["a"])", R"(["b"])"}
                                            << 3 << QByteArray("null");
        QTest::newRow("kind mismatch") << QStringList{"call", "ThdWeight", "[1]"} << 3
                                       << QByteArray("null");
        QTest::newRow("bad JSON") << QStringList{"call", "ThdWeight", "[\"a\""} << 2 << QByteArray();
        QTest::newRow("mixed array") << QStringList{"call", "ThdWeight", R"(["a", 1])"} << 2
                                     << QByteArray();
        QTest::newRow("no command") << QStringList{} << 2 << QByteArray();
        QTest::newRow("unknown option") << QStringList{"list", "--frobnicate"} << 2 << QByteArray();
        QTest::newRow("bad module") << QStringList{"list", "--module", VT_BADSIZES_PATH} << 4
                                    << QByteArray();
    }
    void exitCodes()
    {
        QFETCH(QStringList, args);
        QFETCH(int, code);
        QFETCH(QByteArray, out);
        const Run r = vthost(args);
        QCOMPARE(r.code, code);
        QCOMPARE(r.out.trimmed(), out);
        if (code != 0)
            QVERIFY(!r.err.isEmpty());
        // The reason, not the unused answer, whether or not one was given.
        if (code == 3 && args.contains("--answer"))
            QVERIFY2(r.err.contains("argument 1 of TableDialog must be a real vector"), r.err.constData());
    }

    // Printed numbers read back to the same doubles, x values included.
    void waveformResultRoundTrips()
    {
        const Run r = vthost({"call", "ThdWeight", R"(["A"])"});
        QCOMPARE(r.code, 0);
        const QJsonObject o = jsonLine(r.out).toObject();
        QCOMPARE(o["units"].toString(), QString());
        QCOMPARE(o["xUnits"].toString(), QString());
        const QJsonArray y = o["values"].toArray();
        const QJsonArray x = o["x"].toArray();
        QCOMPARE(y.size(), 34);
        QCOMPARE(x.size(), 34);
        QCOMPARE(y.first().toDouble(), -70.4);
        QCOMPARE(x.first().toDouble(), 10.0);
        QCOMPARE(x.last().toDouble(), 20000.0);
        QVERIFY(r.out.contains("-70.4,") && !r.out.contains("70.400000"));
    }

    void waveformArgumentAndFile()
    {
        QTemporaryDir dir;
        QFile wave(dir.filePath("wave.json"));
        QVERIFY(wave.open(QIODevice::WriteOnly));
        wave.write(R"({"values": [0, 2, 0, 2, 0], "x": [0, 1, 2, 3, 4], "xUnits": "Time"})");
        wave.close();
        const Run r = vthost({"call", "PerCycleTiming", "@" + wave.fileName(), R"(["period"])",
                              R"(["smooth"])", "[1]"});
        QCOMPARE(r.code, 0);
        const QJsonObject o = jsonLine(r.out).toObject();
        QCOMPARE(o["values"].toArray(), (QJsonArray{2.0}));
        QCOMPARE(o["units"].toString(), QString("Time"));
    }

    void runPrintsOneLinePerCall()
    {
        QTemporaryDir dir;
        QFile script(dir.filePath("calls.json"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write(R"([{"call": "ParseEscape", "args": [["x y"]]},
                         {"call": "ThdWeight", "args": [["nope"]]},
                         {"call": "ScanEscape", "args": [["a;b"], [";"], [3]]}])");
        script.close();
        const Run r = vthost({"run", script.fileName()});
        QCOMPARE(r.code, 0);
        QCOMPARE(r.out, QByteArray("[\"x\",\"y\"]\nnull\n[\"a\",\"b\",\"\"]\n"));
    }

    // Dialogs answered from the command line, as a person's clicks would.
    void answeredDialogs_data()
    {
        QTest::addColumn<QString>("answer"); // a JSON script, or accept/cancel
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("out");
        QTest::addColumn<QByteArray>("err");
        QTest::newRow("moved and accepted")
            << R"([{"wait": "ListSubsetDialog"}, {"choose": "listBoxAvailable", "texts": ["a"]},
                  {"click": "Add Selected"}, {"accept": true}])"
            << 0 << QByteArray(R"(["[selected]","a","[notselected]","b"])") << QByteArray();
        QTest::newRow("inspected on stderr")
            << R"([{"inspect": "listBoxAvailable"}, {"accept": true}])" << 0
            << QByteArray(R"(["[selected]","[notselected]","a","b"])")
            << QByteArray(R"({"inspect":"listBoxAvailable","class":"ListBox")");
        QTest::newRow("accept") << "accept" << 0
                                << QByteArray(R"(["[selected]","[notselected]","a","b"])")
                                << QByteArray();
        QTest::newRow("cancel") << "cancel" << 0 << QByteArray(R"([""])") << QByteArray();
        QTest::newRow("no such widget")
            << R"([{"click": "Frobnicate"}])" << 5 << QByteArray("null")
            << QByteArray("no widget \"Frobnicate\"");
        QTest::newRow("headless without answer") << QString() << 5 << QByteArray("null")
                                                 << QByteArray("--answer");
        QTest::newRow("bad step") << R"([{"dance": true}])" << 2 << QByteArray() << QByteArray();
    }
    void answeredDialogs()
    {
        QFETCH(QString, answer);
        QFETCH(int, code);
        QFETCH(QByteArray, out);
        QFETCH(QByteArray, err);
        QTemporaryDir dir;
        QStringList args{"call", "ListSubsetDialog", R"(["b","a"])", R"([""])"};
        if (answer.startsWith('[')) {
            QFile script(dir.filePath("answer.json"));
            QVERIFY(script.open(QIODevice::WriteOnly));
            script.write(answer.toUtf8());
            script.close();
            args << "--answer" << script.fileName();
        } else if (!answer.isEmpty()) {
            args << "--answer" << answer;
        }
        args << "--config-dir" << dir.path();
        const Run r = vthost(args);
        QCOMPARE(r.code, code);
        QCOMPARE(r.out.trimmed(), out);
        QVERIFY2(r.err.contains(err), r.err.constData());
    }

    // Strings travel as UTF-8 bytes; the splitter reads them as 8-bit text.
    void utf8Bytes()
    {
        const Run r = vthost({"call", "ParseEscape", R"(["é"])", R"([""])"});
        QCOMPARE(r.code, 0);
        QCOMPARE(QString::fromUtf8(r.out.trimmed()), QString("[\"é\"]"));
    }
};

QTEST_GUILESS_MAIN(TestVthost)
#include "tst_vthost.moc"

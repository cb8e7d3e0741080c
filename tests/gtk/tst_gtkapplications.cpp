// SPDX-License-Identifier: Apache-2.0
#include "GtkDialog.h"
#include "PrintingSite.h"
#include "applications/AccessBus.h"
#include "applications/AssistiveUser.h"
#include "applications/DisplayServer.h"
#include "applications/JobTicket.h"
#include "applications/RemoteUser.h"
#include "applications/Waiting.h"
#include "service/ServiceName.h"

#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

/// The panel in applications of Debian's that print with GTK's dialog, worked by a user of
/// assistive technology.
class tst_gtkapplications : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void jobIsWhatIsChosenInEvince();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Starts a program at the display.
    void start(OwnedProcess &process, const QString &program, const QStringList &arguments) const;

    DisplayServer mDisplay;
    AccessBus mAccess;
    QTemporaryDir mFolder;
    PrintingSite mSite;
};

void tst_gtkapplications::initTestCase()
{
    // The bus finds the service among the data of the system.
    const QDir services(mFolder.filePath(u"dbus-1/services"_s));
    QVERIFY(services.mkpath(u"."_s));
    QFile service(services.filePath(u"panels.service"_s));
    QVERIFY(service.open(QIODevice::WriteOnly));
    service.write(u"[D-BUS Service]\nName=%1\nExec=%2\n"_s
                      .arg(QLatin1String(ServiceName::bus), QStringLiteral(KV_PANEL_SERVICE))
                      .toUtf8());
    service.close();
    qputenv("XDG_DATA_DIRS", QFile::encodeName(mFolder.path()) + ":/usr/share");
    QCOMPARE(mDisplay.open(), QString());
    QCOMPARE(mSite.open(), QString());
    QCOMPARE(mAccess.open(mDisplay), QString());
}

void tst_gtkapplications::start(OwnedProcess &process, const QString &program,
                                const QStringList &arguments) const
{
    QProcessEnvironment environment = mDisplay.environment();
    QStringList variables = gtkVariables(mFolder.path());
    variables << mAccess.variable() << u"HOME="_s + QDir::homePath();
    for (const QString &variable : std::as_const(variables)) {
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    }
    environment.remove(u"NO_AT_BRIDGE"_s);
    environment.remove(u"GTK_A11Y"_s);
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(mFolder.filePath(u"errors"_s));
    process.start(program, arguments);
}

void tst_gtkapplications::jobIsWhatIsChosenInEvince()
{
    const QString document = mSite.path(u"label.pdf"_s);
    {
        QPdfWriter writer(document);
        QPainter painter(&writer);
        painter.drawText(500, 500, u"label"_s);
    }
    QVERIFY(mSite.saveUserOptions("Default tape KvMirror=ON\n"));
    const QList<int> before = mSite.scheduler().jobIds();
    OwnedProcess evince;
    start(evince, u"evince"_s, {document});
    const AssistiveUser user(mAccess.bus());
    QVERIFY(waitFor([this] { return mAccess.hasApplications(); }));
    QVERIFY(waitFor([this] {
        return mDisplay.command({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"label"_s,
                                 u"windowactivate"_s, u"--sync"_s});
    }));
    QVERIFY(RemoteUser(mDisplay).press(u"ctrl+p"_s));
    QVERIFY(user.act(u"Half Cut"_s, u"Click"_s));
    QVERIFY(user.act(u"Print"_s, u"Click"_s));
    QVERIFY(waitFor([&] { return mSite.scheduler().jobIds().size() == before.size() + 1; }));
    QCOMPARE(JobTicket::attributes(mSite.scheduler().jobIds().last(), u"Kv"_s),
             (QStringList{u"KvAutoTapeCut=ON"_s, u"KvChainPrint=OFF"_s, u"KvHalfCut=ON"_s,
                          u"KvMirror=ON"_s, u"KvRemoveBlkSpace=OFF"_s, u"KvSpecialTape=OFF"_s}));
}

KV_TEST(tst_gtkapplications)
#include "tst_gtkapplications.moc"

// SPDX-License-Identifier: Apache-2.0
#include "plugin/PDEPlugIn.h"
#include "plugin/PDEPluginCallback.h"

#include <QLabel>
#include <QPointer>

namespace {
const QString mirror = u"KvMirror"_s;

/// A panel that is odd in the way of its kind and otherwise does nothing but list what it is told.
class OddPanel : public PDEPanel
{
public:
    OddPanel(QString kind, std::shared_ptr<PDEPluginCallback13_v400_> callback)
        : mKind(std::move(kind))
        , mCallback(std::move(callback))
    {
        if (mKind != u"Keyless") {
            mKeys.append(mirror);
        }
    }
    ~OddPanel() override { delete mView; }

    QWidget *panelView() override
    {
        if (!mView && mKind != u"Viewless") {
            mView = new QLabel;
            mView->setObjectName(u"oddView"_s);
        }
        return mView;
    }
    QString panelName() override { return mKind; }
    QString panelKind() override { return u"com.korvane.test.odd"_s; }
    std::optional<QStringList> supportedPPDOptionKeys() override
    {
        return mKind == u"Undeclaring" ? std::nullopt : std::optional(mKeys);
    }

    void printWindowWillClose() override {}
    void willShow() override { list(u"willShow"_s); }
    bool shouldHide() override { return mKind != u"Staying"; }
    bool shouldPrint() override { return mKind != u"Refusing"; }
    bool shouldShowHelp() override { return false; }

    void PPDOptionKeyValueDidChange(const QString &key, const QString &ppdChoice) override
    {
        list(key + u'=' + ppdChoice);
    }
    bool restoreValuesAndReturnError(QString *) override { return true; }
    bool saveValuesAndReturnError(QString *error) override
    {
        if (mKind == u"Unsaving") {
            *error = u"the tape is stuck"_s;
            return false;
        }
        mCallback->willChangePPDOptionKeyValue(mirror, u"ON"_s);
        mCallback->willChangePPDOptionKeyValue(mirror, u"ON"_s);
        if (mKind == u"Lying") {
            mCallback->willChangePPDOptionKeyValue(mirror, u"MAYBE"_s);
            mCallback->willChangePPDOptionKeyValue(u"KvNone"_s, u"ON"_s);
        }
        return true;
    }
    std::optional<QVariantMap> summaryInfo() override
    {
        if (mKind == u"Lying") {
            return std::nullopt;
        }
        return QVariantMap{{u"Kind"_s, mKind}, {kSummaryDisplayOrder, QStringList{u"Kind"_s}}};
    }

private:
    void list(const QString &event)
    {
        mEvents.append(event);
        if (mView) {
            mView->setText(mEvents.join(u' '));
        }
    }

    QString mKind;
    std::shared_ptr<PDEPluginCallback13_v400_> mCallback;
    QStringList mKeys;
    QStringList mEvents;
    QPointer<QLabel> mView;
};

class OddPlugIn : public PDEPlugIn
{
public:
    explicit OddPlugIn(QString kind)
        : mKind(std::move(kind))
    {
    }

    bool initWithBundle(const std::shared_ptr<Bundle> &) override { return mKind != u"Unwilling"; }
    std::shared_ptr<PDEPanelList>
    PDEPanelsForType(const QString &type,
                     const std::shared_ptr<PDEPluginCallback13_v400_> &hostInfo) override
    {
        if (mKind == u"Panelless" || type != kPrinterModuleDialogType) {
            return nullptr;
        }
        mPanels = std::make_shared<PDEPanelList>();
        mPanels->push_back(std::make_unique<OddPanel>(mKind, hostInfo));
        return mPanels;
    }

private:
    QString mKind;
    std::shared_ptr<PDEPanelList> mPanels;
};
} // namespace

/// Makes plug-ins whose principal class is the kind of oddity.
class OddPanelsPlugIn : public QObject, public PDEPlugInFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInFactory_iid)
    Q_INTERFACES(PDEPlugInFactory)

public:
    std::unique_ptr<PDEPlugIn> makePlugIn(const QString &principalClass) const override
    {
        return std::make_unique<OddPlugIn>(principalClass);
    }
};

#include "OddPanelsPlugIn.moc"

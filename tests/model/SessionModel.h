// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelModel.h"

#include <memory>

namespace model {

/**
 * A conversation with the panel as its protocol describes it: predicts the answer to every line.
 *
 * Where an answer is an error its text is not predicted; it is left out.
 */
class SessionModel
{
public:
    /// @param printer what each PPD that is opened holds, and @param ticket what each settings file
    ///        does; both must outlive this object.
    SessionModel(const Printer &printer, const std::optional<Ticket> &ticket);

    /// The answer to a line, without the text of an error.
    QJsonObject answer(const QByteArray &line);

    /// The panel that is open; null when none is.
    const PanelModel *panel() const { return mPanel.get(); }

private:
    /// How far a conversation must have come for a command.
    enum class Stage { Closed, Open, Viewed };

    using Answer = std::optional<QJsonObject>;

    struct Command
    {
        QLatin1String name;
        Stage stage;
        QList<QLatin1String> members;
        Answer (SessionModel::*run)(const QJsonObject &request);
    };
    static const Command commands[];

    Answer run(const QJsonObject &request);
    bool isInPlace(Stage stage) const;
    JobPaper defaultPaper() const;
    JobPaper paperNamed(const QJsonValue &name) const;

    Answer open(const QJsonObject &request);
    Answer close(const QJsonObject &request);
    Answer view(const QJsonObject &request);
    Answer show(const QJsonObject &request);
    Answer hide(const QJsonObject &request);
    Answer click(const QJsonObject &request);
    Answer preset(const QJsonObject &request);
    Answer type(const QJsonObject &request);
    Answer step(const QJsonObject &request);
    Answer paper(const QJsonObject &request);
    Answer choose(const QJsonObject &request);
    Answer save(const QJsonObject &request);
    Answer restore(const QJsonObject &request);
    Answer keys(const QJsonObject &request);
    Answer print(const QJsonObject &request);
    Answer summary(const QJsonObject &request);
    Answer state(const QJsonObject &request);
    Answer screenshot(const QJsonObject &request);

    const Printer &mPrinter;
    const std::optional<Ticket> &mTicket;
    std::unique_ptr<PanelModel> mPanel;
};

} // namespace model

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/PanelBundle.h"
#include "host/PrinterMaps.h"

#include <QString>

#include <memory>
#include <vector>

class ProblemReporter;

/// What the dialogs of a process show: the bundles that it has loaded, and the maps for printers
/// that have other keywords.
class PanelBundles
{
public:
    /**
     * Loads every bundle (a folder whose name ends in ".pde") in a folder, in the order of names,
     * and the keyword maps: the administrator's, those of the bundles, and ours.
     *
     * A bundle is left alone when its info file or its library is no trusted CheckedFile of the
     * given folder.
     *
     * @param reporter told of each bundle and map that cannot be loaded and of each resource that
     * is missing; what is left works.
     */
    static PanelBundles load(const QString &folder, ProblemReporter &reporter);

    /// Adds a bundle behind the others.
    void add(std::unique_ptr<PanelBundle> bundle) { mBundles.push_back(std::move(bundle)); }

    auto begin() const { return mBundles.begin(); }
    auto end() const { return mBundles.end(); }
    bool empty() const { return mBundles.empty(); }
    std::size_t size() const { return mBundles.size(); }
    const std::unique_ptr<PanelBundle> &front() const { return mBundles.front(); }

    const PrinterMaps &maps() const { return mMaps; }

private:
    std::vector<std::unique_ptr<PanelBundle>> mBundles;
    PrinterMaps mMaps;
};

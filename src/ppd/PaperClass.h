// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

/// The kind of medium that a paper's name in the PPD begins with.
enum class PaperClass {
    /// None of the others.
    Other,
    /// "DC": die-cut labels.
    DieCut,
    /// "AV": address labels.
    Address,
    /// "FL": flag labels.
    Flag,
    /// "C_": continuous labels.
    Continuous,
    /// "HS": heat-shrink tube.
    HeatShrink,
    /// "Custom": a size of the user's own.
    Custom,
};

/// What the names of a class of papers begin with.
struct PaperPrefix
{
    const char *prefix;
    PaperClass paper;
    /// What the class is, in English.
    const char *meaning;
};

/// The prefix that a paper's name begins with, to the letter; null for one of the class Other.
const PaperPrefix *paperPrefixOf(const QByteArray &name);

/// The class of a paper's name, to the letter; Other for an empty one.
PaperClass paperClassOf(const QByteArray &name);

/// Whether the paper's labels have a shape or length of their own.
bool isLabelPaper(PaperClass paper);

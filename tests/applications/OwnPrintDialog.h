// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPrintDialog>

/// A print dialog of the application's own class, as many applications have one.
class OwnPrintDialog : public QPrintDialog
{
    Q_OBJECT

public:
    using QPrintDialog::QPrintDialog;
};

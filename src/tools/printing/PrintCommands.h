// The print command.
#pragma once

#include "platform/desktop/PrintDevice.h"

#include <functional>

class Frame;

/// Where prints go. Tests put in others.
struct PrintDevices {
    std::function<std::unique_ptr<PrintDevice>()> Default = DefaultPrinter;
    std::function<std::unique_ptr<PrintDevice>(const QString& path)> Pdf = PdfPrinter;
};

/// Fills mnuPrint: asks for the number of copies, and for a PDF file where there is no printer.
void FillPrintCommands(Frame& frame);

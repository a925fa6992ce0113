#include "screens/Printing.h"

#include "paper/Printer.h"
#include "screens/WaitCursor.h"

#include <exception>
#include <iostream>

namespace tarn {

bool Printed(Dialogs& boxes, const std::function<void()>& print) {
    try {
        const WaitCursor waiting;
        print();
        return true;
    } catch (const std::exception& error) {
        std::cerr << "tarn: " << error.what() << '\n';
    }
    boxes.Message(PrinterNotReadyMessage);
    return false;
}

} // namespace tarn

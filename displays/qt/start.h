// Creates Qt's application object.
#ifndef VAMO_DISPLAYS_QT_START_H_
#define VAMO_DISPLAYS_QT_START_H_

#include <QApplication>
#include <memory>

namespace vamo {

// Connects to the desktop and sets what all windows share: style, colours, and that only the
// toolkit ends the program. If there is no desktop, prints one line on standard error and ends the
// process with exit status 1.
std::unique_ptr<QApplication> StartApplication(int& argc, char** argv);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_START_H_

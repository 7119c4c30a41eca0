#include "Common/Exception.h"
#include "ExplorerDesktop/DesktopProgram.h"

#include <QApplication>
#include <iostream>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("explorer-desktop");
    try
    {
        aec::desktop::DesktopOptions options = aec::desktop::DesktopOptions::parse(QApplication::arguments());
        return aec::desktop::CDesktopProgram(std::move(options), std::cout, std::cerr).run();
    }
    catch (const common::EException& failure)
    {
        std::cerr << "explorer-desktop: " << failure.what() << "\n\n"
                  << aec::desktop::DesktopOptions::usage().toStdString();
        return 2;
    }
}

#include "report/ZOLPrintData.h"

#include "io/ZOLFormat.h"

#ifndef ZOL_RESOURCES_DIR
#define ZOL_RESOURCES_DIR "resources"
#endif

namespace {

std::string& resourcesSlot() {
    static std::string directory = ZOL_RESOURCES_DIR;
    return directory;
}

} // namespace

void ZOLPrintData::setResourcesDirectory(const std::string& directory) {
    resourcesSlot() = directory;
}

std::string ZOLPrintData::resourcesDirectory() {
    return resourcesSlot();
}

std::string ZOLPrintData::backgroundImagePath() {
    // The vector artwork: it prints sharp at any resolution, and the PDF engine draws it in a
    // fraction of the time it takes to re-encode the full-page bitmap for every sheet.
    std::string directory = resourcesSlot();
    if (!directory.empty() && directory.back() != '/')
        directory += '/';
    return directory + "report/PrintingBackground.svg";
}

std::string ZOLPrintData::getHeaderHTML() {
    return ZOLFormat::format(
        "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">\n"
        "<html>\n"
        "<head>\n"
        "<title></title>\n"
        "<style type=\"text/css\">\n"
        "html { font-family:Arial; font-size:9pt; }\n"
        "body { margin:0; }\n"
        "div.page { width:21.6cm; height:27.9cm; background:url('%@'); "
        "background-repeat:no-repeat; background-size:21.6cm 27.9cm; }\n"
        "div.content { padding:1.2cm 1.3cm 1.3cm 1.8cm; }\n"
        "div.tit, div.rebar { font-size:12pt; }\n"
        "div.rebar-type { margin-top:60px; }\n"
        "div.tilt table { margin-top:150px; }\n"
        "div.tilt table th, div.tilt table td { font-size:12pt; }\n"
        "div.tilt p.footer { margin-top:10cm; margin-left:40px; font-size:9pt; }\n"
        "h1 { font-size:16pt; }\n"
        "h2 { font-size:14pt; }\n"
        "h3 { font-size:12pt; }\n"
        "table { margin-top:10px; }\n"
        "th, td { padding-right:45px; font-size:9pt; }\n"
        ".tight { padding:0; }\n"
        "th { text-align:left; }\n"
        "p.footer { margin-top: 12cm; }\n"
        "</style>\n"
        "</head>\n"
        "<body>\n",
        backgroundImagePath());
}

std::string ZOLPrintData::getFooterHTML() {
    return "</body></html>";
}

#include "ui/ZOLReportRenderer.h"

#include "ui/ZOLPrintJob.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QMarginsF>
#include <QMimeDatabase>
#include <QMutex>
#include <QMutexLocker>
#include <QPageLayout>
#include <QPageSize>
#include <QPointer>
#include <QPrinter>
#include <QSaveFile>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>
#include <QWebEngineUrlSchemeHandler>

#include <unistd.h>

namespace {

// The report is served from memory under this scheme rather than as a data: address, which the
// browser caps at 2 MB (a few dozen worksheets). The scheme's paths are the paths of the
// resources folder, so the report's relative and absolute resource paths both resolve there.
const QByteArray kReportScheme = "zolreport";

bool& schemeRegistered() {
    static bool registered = false;
    return registered;
}

void registerReportScheme() {
    if (schemeRegistered())
        return;
    QWebEngineUrlScheme scheme(kReportScheme);
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Path);
    scheme.setFlags(QWebEngineUrlScheme::SecureScheme | QWebEngineUrlScheme::LocalScheme |
                    QWebEngineUrlScheme::LocalAccessAllowed);
    QWebEngineUrlScheme::registerScheme(scheme);
    schemeRegistered() = true;
}

// The refusals, shared by the three guards below.
class RequestLog {
public:
    void add(const QString& entry) {
        QMutexLocker lock(&mutex_);
        entries_.append(entry);
    }
    QStringList entries() const {
        QMutexLocker lock(&mutex_);
        return entries_;
    }

private:
    mutable QMutex mutex_;
    QStringList entries_;
};

// True when the local path names a file inside the resources folder (after resolving links and
// "..", so that a path cannot climb out of it).
bool insideFolder(const QString& canonicalFolder, const QString& path) {
    if (canonicalFolder.isEmpty())
        return false;
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return !canonical.isEmpty() && canonical.startsWith(canonicalFolder + QLatin1Char('/'));
}

// First guard: every request of the page, whatever its kind (document, image, style sheet,
// frame, font, prefetch), passes here; only the report's own scheme, the program's compiled-in
// resources and files of the resources folder go through.
class RequestGuard : public QWebEngineUrlRequestInterceptor {
public:
    RequestGuard(QString canonicalFolder, RequestLog& log, QObject* parent)
        : QWebEngineUrlRequestInterceptor(parent), folder_(std::move(canonicalFolder)), log_(log) {}

    void interceptRequest(QWebEngineUrlRequestInfo& info) override {
        const QUrl url = info.requestUrl();
        const QString scheme = url.scheme();
        if (scheme == QLatin1String(kReportScheme) || scheme == QLatin1String("qrc"))
            return;
        if (scheme == QLatin1String("file") && insideFolder(folder_, url.toLocalFile()))
            return;
        info.block(true);
        log_.add(url.toString());
    }

private:
    QString folder_;
    RequestLog& log_;
};

// Second guard and the server of the report: answers the report's address with the report and
// any other address of the scheme with the file of that path, when it lies inside the resources
// folder.
class ReportServer : public QWebEngineUrlSchemeHandler {
public:
    ReportServer(QString canonicalFolder, QString reportPath, RequestLog& log, QObject* parent)
        : QWebEngineUrlSchemeHandler(parent), folder_(std::move(canonicalFolder)),
          reportPath_(std::move(reportPath)), log_(log) {}

    void setReport(QByteArray html) { report_ = std::move(html); }

    void requestStarted(QWebEngineUrlRequestJob* job) override {
        const QUrl url = job->requestUrl();
        if (job->requestMethod() != "GET") {
            log_.add(url.toString());
            job->fail(QWebEngineUrlRequestJob::RequestDenied);
            return;
        }
        const QString path = url.path();
        if (path == reportPath_) {
            auto* buffer = new QBuffer(job);
            buffer->setData(report_);
            buffer->open(QIODevice::ReadOnly);
            job->reply("text/html;charset=utf-8", buffer);
            return;
        }
        if (insideFolder(folder_, path) && QFileInfo(path).isFile()) {
            auto* file = new QFile(path, job);
            if (file->open(QIODevice::ReadOnly)) {
                job->reply(QMimeDatabase().mimeTypeForFile(path).name().toUtf8(), file);
                return;
            }
        }
        log_.add(url.toString());
        job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    }

private:
    QString folder_;
    QString reportPath_;
    QByteArray report_;
    RequestLog& log_;
};

// Third guard: the page goes to one address only, the report's, and only when the renderer
// loads it. Links, refreshes, frames and forms go nowhere; no window is ever opened.
class ReportPage : public QWebEnginePage {
public:
    ReportPage(QWebEngineProfile* profile, RequestLog& log, QObject* parent)
        : QWebEnginePage(profile, parent), log_(log) {}

    void expect(const QUrl& url) { expected_ = url; }

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) override {
        if (isMainFrame && !expected_.isEmpty() && url == expected_) {
            expected_.clear();
            return true;
        }
        log_.add(url.toString());
        return false;
    }
    QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}

private:
    RequestLog& log_;
    QUrl expected_;
};

QPageLayout letterWithoutMargins() {
    return QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0));
}

} // namespace

struct ZOLReportRenderer::Private {
    QString folder;
    QUrl reportUrl;
    RequestLog log;
    QWebEngineProfile* profile = nullptr;
    ReportServer* server = nullptr;
    ReportPage* page = nullptr;
    std::function<void(bool)> pendingLoad;
    // The report under way; a cancelled or replaced one drops what its engine still delivers.
    std::function<void(const QByteArray&, const QString&)> pendingPdf;
    quint64 job = 0;
    bool cancelled = false;
};

void ZOLReportRenderer::prepareApplication() {
    // The browser's sandbox refuses to run as root (CI machines, containers).
    if (::geteuid() == 0 && !qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // Without a display there is no GPU to draw with: draw in software from the start instead
    // of probing for one.
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const bool headless = platform == "offscreen" || platform == "minimal" ||
                          (platform.isEmpty() && qEnvironmentVariableIsEmpty("DISPLAY") &&
                           qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"));
    if (headless) {
        QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
        if (!flags.contains("--disable-gpu"))
            flags += flags.isEmpty() ? "--disable-gpu" : " --disable-gpu";
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags);
    }
    if (!QCoreApplication::instance())
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    registerReportScheme();
}

ZOLReportRenderer::ZOLReportRenderer(const QString& resourcesDirectory, QObject* parent)
    : QObject(parent), d(std::make_unique<Private>()) {
    registerReportScheme();

    QDir folder(resourcesDirectory);
    d->folder = folder.canonicalPath();
    const QString base = d->folder.isEmpty() ? folder.absolutePath() : d->folder;
    const QString reportPath = base.endsWith(QLatin1Char('/')) ? base : base + QLatin1Char('/');
    d->reportUrl.setScheme(QString::fromLatin1(kReportScheme));
    d->reportUrl.setPath(reportPath);

    // A profile of its own that keeps nothing on disk: no cache, no cookies, no history.
    d->profile = new QWebEngineProfile(this);
    d->profile->setHttpCacheType(QWebEngineProfile::NoCache);
    d->profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    d->profile->setSpellCheckEnabled(false);
    d->profile->setUrlRequestInterceptor(new RequestGuard(d->folder, d->log, d->profile));
    d->server = new ReportServer(d->folder, reportPath, d->log, d->profile);
    d->profile->installUrlSchemeHandler(kReportScheme, d->server);

    d->page = new ReportPage(d->profile, d->log, this);
    QWebEngineSettings* settings = d->page->settings();
    settings->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    settings->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    settings->setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false);
    settings->setAttribute(QWebEngineSettings::JavascriptCanPaste, false);
    settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    settings->setAttribute(QWebEngineSettings::PdfViewerEnabled, false);
    settings->setAttribute(QWebEngineSettings::WebGLEnabled, false);
    settings->setAttribute(QWebEngineSettings::Accelerated2dCanvasEnabled, false);
    settings->setAttribute(QWebEngineSettings::AutoLoadIconsForPage, false);
    settings->setAttribute(QWebEngineSettings::HyperlinkAuditingEnabled, false);
    settings->setAttribute(QWebEngineSettings::DnsPrefetchEnabled, false);
    settings->setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    settings->setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, false);
    settings->setAttribute(QWebEngineSettings::NavigateOnDropEnabled, false);
    settings->setAttribute(QWebEngineSettings::AllowRunningInsecureContent, false);
    settings->setAttribute(QWebEngineSettings::AllowGeolocationOnInsecureOrigins, false);
    settings->setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
    settings->setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, true);
    // The page background is the estimate's artwork: it must print.
    settings->setAttribute(QWebEngineSettings::PrintElementBackgrounds, true);
    settings->setAttribute(QWebEngineSettings::AutoLoadImages, true);
    // The report asks for Arial; where it is not installed a sans-serif face stands in rather
    // than the engine's serif default.
    settings->setFontFamily(QWebEngineSettings::StandardFont,
                            settings->fontFamily(QWebEngineSettings::SansSerifFont));

    connect(d->page, &QWebEnginePage::loadFinished, this, [this](bool ok) {
        if (!d->pendingLoad)
            return;
        auto loaded = std::move(d->pendingLoad);
        d->pendingLoad = nullptr;
        loaded(ok);
    });
}

ZOLReportRenderer::~ZOLReportRenderer() {
    // The page must go before the profile it uses.
    delete d->page;
}

std::unique_ptr<QPrinter> ZOLReportRenderer::letterPrinter(const QString& documentName) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageSize(QPageSize(QPageSize::Letter));
    printer->setFullPage(true);
    printer->setPageMargins(QMarginsF(0, 0, 0, 0));
    printer->setDocName(documentName);
    return printer;
}

QByteArray ZOLReportRenderer::printableHtml(const std::string& reportHtml) {
    // The byte-order mark settles the text encoding (the report's head names none). After the
    // report: every page div begins a new sheet, so the 0.04 cm a Letter sheet has beyond a page
    // div never adds up; a page whose content outgrows its div continues on the next sheet, its
    // background repeated, instead of losing the text or running into the next page.
    static const char kPrintRules[] =
        "\n<style type=\"text/css\">\n"
        "@page { margin: 0; }\n"
        "div.page { break-after: page; page-break-after: always; height: auto !important; "
        "min-height: 27.9cm; background-repeat: repeat-y !important; }\n"
        "</style>\n";
    QByteArray html("\xEF\xBB\xBF");
    html.reserve(static_cast<qsizetype>(reportHtml.size() + sizeof kPrintRules + 3));
    html.append(reportHtml.data(), static_cast<qsizetype>(reportHtml.size()));
    html.append(kPrintRules);
    return html;
}

void ZOLReportRenderer::load(const std::string& reportHtml, std::function<void(bool)> loaded) {
    d->server->setReport(printableHtml(reportHtml));
    d->pendingLoad = std::move(loaded);
    d->page->expect(d->reportUrl);
    d->page->load(d->reportUrl);
}

void ZOLReportRenderer::renderPdf(
    const std::string& reportHtml,
    std::function<void(const QByteArray& pdf, const QString& error)> done,
    const QPageRanges& pages) {
    // A new report replaces one still under way, whose caller hears that it failed.
    if (auto previous = std::move(d->pendingPdf))
        previous(QByteArray(), QStringLiteral("The report was replaced by another."));
    const quint64 job = ++d->job;
    d->cancelled = false;
    d->pendingPdf = std::move(done);
    auto finish = [this, job](const QByteArray& pdf, const QString& error) {
        if (job != d->job || !d->pendingPdf)
            return;
        auto done = std::move(d->pendingPdf);
        d->pendingPdf = nullptr;
        done(pdf, error);
    };
    QPointer<ZOLReportRenderer> self(this);
    load(reportHtml, [self, job, pages, finish](bool ok) {
        if (!self || job != self->d->job)
            return;
        if (!ok) {
            finish(QByteArray(), QStringLiteral("The report could not be laid out."));
            return;
        }
        self->d->page->printToPdf(
            [self, finish](const QByteArray& pdf) {
                if (self)
                    finish(pdf, pdf.isEmpty() ? QStringLiteral("The report could not be printed.")
                                              : QString());
            },
            letterWithoutMargins(), pages);
    });
}

void ZOLReportRenderer::print(const std::string& reportHtml, QPrinter* printer,
                              std::function<void(bool ok, const QString& error)> done) {
    const QPageRanges pages =
        printer->printRange() == QPrinter::PageRange ? printer->pageRanges() : QPageRanges();
    const QString title = printer->docName();
    renderPdf(
        reportHtml,
        [printer, title, done = std::move(done)](const QByteArray& pdf, const QString& error) {
            if (pdf.isEmpty()) {
                done(false, error);
                return;
            }
            QString why;
            const bool printed = ZOLPrintJob::submit(pdf, *printer, title, &why);
            done(printed, why);
        },
        pages);
}

void ZOLReportRenderer::cancel() {
    if (!d->pendingPdf)
        return;
    ++d->job; // whatever the engine still delivers for it is dropped
    d->pendingLoad = nullptr;
    d->cancelled = true;
    d->page->triggerAction(QWebEnginePage::Stop);
    auto done = std::move(d->pendingPdf);
    d->pendingPdf = nullptr;
    done(QByteArray(), QStringLiteral("Cancelled."));
}

bool ZOLReportRenderer::wasCancelled() const {
    return d->cancelled;
}

bool ZOLReportRenderer::isBusy() const {
    return static_cast<bool>(d->pendingPdf);
}

QByteArray ZOLReportRenderer::renderPdfAndWait(const std::string& reportHtml, QString* error) {
    QEventLoop loop;
    QByteArray result;
    QString message;
    bool finished = false;
    renderPdf(reportHtml, [&](const QByteArray& pdf, const QString& why) {
        result = pdf;
        message = why;
        finished = true;
        loop.quit();
    });
    if (!finished)
        loop.exec();
    if (error)
        *error = message;
    return result;
}

bool ZOLReportRenderer::writePdf(const std::string& reportHtml, const QString& path,
                                 QString* error) {
    QString message;
    const QByteArray pdf = renderPdfAndWait(reportHtml, &message);
    if (pdf.isEmpty()) {
        if (error)
            *error = message;
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size() || !file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

QStringList ZOLReportRenderer::blockedRequests() const {
    return d->log.entries();
}

QWebEnginePage* ZOLReportRenderer::page() const {
    return d->page;
}

// Saves that never cost a job: markup in the user's text, the read-back before a file is
// replaced, the leftovers of a killed save, and the prices a workbook file was saved with.
#include "io/ZOLFileSaver.h"
#include "io/ZOLPriceFileReader.h"
#include "model/ZOLPriceItem.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "support/AlertRecorder.h"
#include "support/ChangedSample.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace {
const std::string kMarkup = "Lakeview & Co <\"North\"> & >";
} // namespace

TEST(ZOLSaving, MarkupInTheProjectAndWorksheetTextsComesBack) {
    ScopedAlertRecorder alerts;
    ZOLWorkbook workbook;
    workbook.setProjectName(kMarkup);
    workbook.setProjectVersion("<v2>");
    workbook.setDistributorName("\"Best\" Blocks");
    workbook.worksheets()[0]->setName("Garage \"B\" & <1>");
    const std::string bytes = workbook.getXMLString();
    EXPECT_NE(bytes.find("<ProjectName>Lakeview &amp; Co &lt;&quot;North&quot;&gt; &amp; "
                         "&gt;</ProjectName>"),
              std::string::npos);
    EXPECT_TRUE(ZOLFileSaver::readsBack(bytes, ZOLFileKind::Workbook));
    const auto opened = openedWorkbook(bytes);
    EXPECT_EQ(opened->projectName(), kMarkup);
    EXPECT_EQ(opened->worksheets()[0]->name(), "Garage \"B\" & <1>");
    // Saved again, the file is the same: escaping is stable.
    EXPECT_EQ(opened->getXMLString().find(bytes.substr(0, bytes.find("<PricingData>"))), 0u);
    // The job-summary lines' markup: see ZOLCustomItem and the template reader.
    EXPECT_TRUE(alerts->alerts.empty());
}

TEST(ZOLSaving, NeitherBytesThatWouldNotOpenAgainNorAKilledSavesLeftoversStay) {
    ScopedAlertRecorder alerts;
    TempFolder folder;
    const std::string path = folder / "job.zol";
    const std::string good = ZOLWorkbook().getXMLString();
    ASSERT_EQ(ZOLFileSaver::save(path, good, ZOLFileKind::Workbook), ZOLFileSaver::Outcome::Saved);

    // What a writer fault would produce: cut short, raw markup, another kind of file, nothing.
    std::string rawAmpersand = good;
    rawAmpersand.replace(rawAmpersand.find("<ProjectName>") + 13, 0, "A & B");
    const std::vector<std::pair<std::string, ZOLFileKind>> faults = {
        {good.substr(0, good.size() / 2), ZOLFileKind::Workbook},
        {rawAmpersand, ZOLFileKind::Workbook},
        {ZOLPricing().getFullXMLString(), ZOLFileKind::Workbook},
        {good, ZOLFileKind::Template},
        {"", ZOLFileKind::PriceList},
    };
    for (const auto& [bytes, kind] : faults) {
        std::string error;
        EXPECT_EQ(ZOLFileSaver::save(path, bytes, kind, &error), ZOLFileSaver::Outcome::Unreadable);
        EXPECT_EQ(error, ZOLFileSaver::kUnreadableReason);
        EXPECT_EQ(TempFolder::contents(path), good);
        EXPECT_EQ(folder.names(), std::vector<std::string>{"job.zol"});
    }
    // The checks raise no alert of their own.
    EXPECT_TRUE(alerts->alerts.empty());

    // A save removes what a killed save of the same file left.
    TempFolder killed;
    // A process that has ended, one that runs (this one's parent), and this process itself.
    const pid_t gone = fork();
    if (gone == 0)
        _exit(0);
    waitpid(gone, nullptr, 0);
    const std::string dead = ".job.zol.tmp-" + std::to_string(gone) + "-3";
    const std::string live = ".job.zol.tmp-" + std::to_string(getppid()) + "-0";
    const std::string other = ".other.zol.tmp-" + std::to_string(gone) + "-0";
    for (const auto& name : {dead, live, other})
        TempFolder::write(killed / name, "half");
    ASSERT_EQ(ZOLFileSaver::save(killed / "job.zol", ZOLPricing().getFullXMLString(),
                                 ZOLFileKind::PriceList),
              ZOLFileSaver::Outcome::Saved);
    EXPECT_EQ(killed.names(), (std::vector<std::string>{live, other, "job.zol"}));
}

TEST(ZOLSaving, TheSavedPricesBehindTheDefaultsAreOneCommandAway) {
    ScopedAlertRecorder alerts;
    ZOLWorkbook priced;
    const auto& items = priced.pricingData()->priceItems();
    items[0]->setPrice(4.75);
    items.back()->setPrice(0.35);
    auto opened = openedWorkbook(priced.getXMLString());
    ZOLPricing& pricing = *opened->pricingData();
    EXPECT_EQ(pricing.savedItems().size(), items.size());
    EXPECT_TRUE(pricing.savedItemsChangePrices());
    EXPECT_DOUBLE_EQ(pricing.getPriceForItemType(0, 4), 0.0);
    ASSERT_TRUE(pricing.useSavedItems());
    EXPECT_EQ(pricing.getFullXMLString(), priced.pricingData()->getFullXMLString());
    // Now there is nothing behind the list, and nothing to use a second time.
    EXPECT_TRUE(pricing.savedItems().empty());
    EXPECT_FALSE(pricing.useSavedItems());

    // A workbook saved at zero prices brings nothing a user would want to use.
    auto unpriced = openedWorkbook(ZOLWorkbook().getXMLString());
    EXPECT_FALSE(unpriced->pricingData()->savedItemsChangePrices());
    // A list whose front the user has priced is no longer the defaults: nothing lies behind it.
    EXPECT_FALSE(unpriced->pricingData()->savedItems().empty());
    unpriced->pricingData()->priceItems()[0]->setPrice(1.0);
    EXPECT_TRUE(unpriced->pricingData()->savedItems().empty());
}

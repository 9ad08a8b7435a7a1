#include "reports/banner.h"

#include "report_fixture.h"

namespace tendo {
namespace {

class Banner : public ReportTest {
  protected:
    static constexpr const char* Keys[] = {
        "PrintCompanyName",  "PrintDescription", "PrintCompanyAddress", "PrintCityStateZip",
        "PrintCompanyPhone", "PrintCompanyFax",  "PrintLeftPicture",    "PrintRightPicture"};

    void SetUpAll() {
        BannerOption("Description", "Comfort, measured");
        BannerOption("CompanyFax", "(507) 555-0198");
        BannerOption("LeftPicture", MakePicture("left.gif", 10, 10));
        BannerOption("RightPicture", MakePicture("right.gif", 10, 10));
    }
    std::string Print() {
        surface.Action(3);
        PrintBanner(surface);
        return CallsText();
    }
};

TEST_F(Banner, TheDefaultOneHoldsTheCompanyBetweenTwoPictures) {
    SetUpAll();
    Print();
    ExpectGoldenWithout("banner_default.txt", {});
}

TEST_F(Banner, EachLineAndPictureGoesWithItsOption) {
    SetUpAll();
    for (const std::string key : Keys) {
        BannerOption(key, "0");
        Print();
        ExpectGoldenWithout("banner_default.txt", {key});
        BannerOption(key, "1");
    }
}

TEST_F(Banner, EachLineAndPictureStandsAlone) {
    SetUpAll();
    for (const std::string key : Keys) {
        std::set<std::string> others(std::begin(Keys), std::end(Keys));
        others.erase(key);
        for (const std::string& other : others)
            BannerOption(other, "0");
        BannerOption(key, "1");
        Print();
        ExpectGoldenWithout("banner_default.txt", others);
    }
}

TEST_F(Banner, WithEveryOptionOffOnlyTheLineUnderItIsDrawn) {
    SetUpAll();
    for (const char* key : Keys)
        BannerOption(key, "0");
    Print();
    ExpectGoldenWithout("banner_default.txt", {std::begin(Keys), std::end(Keys)});
    EXPECT_EQ(CountOf("Paragraph"), 0);
}

TEST_F(Banner, AnOptionOtherThanOneIsOff) {
    SetUpAll();
    BannerOption("PrintCompanyFax", "2");
    Print();
    ExpectGoldenWithout("banner_default.txt", {"PrintCompanyFax"});
}

TEST_F(Banner, ACustomPictureReplacesIt) {
    Option("txtBannerFile", MakePicture("banner.gif", 700, 120));
    Print();
    ExpectGolden("banner_custom.txt");
}

TEST_F(Banner, UseCustomBannerOnWithAnEmptyFileIsTheDefaultBanner) {
    const std::string standard = Print();
    Option("chkUseCustomBanner", "1");
    Option("txtBannerFile", "");
    EXPECT_EQ(Print(), standard);
    EXPECT_EQ(ValuesOf("Paragraph").at(1), "Northfield Heating");
}

TEST_F(Banner, AFileNamedLikeItsFormIsTheMarkOfTheDefaultBanner) {
    const std::string standard = Print();
    Option("txtBannerFile", " frmBanner ");
    EXPECT_EQ(Print(), standard);
}

TEST_F(Banner, AMissingCustomFileIsTheDefaultBanner) {
    const std::string standard = Print();
    Option("txtBannerFile", (folder / "gone.gif").string());
    EXPECT_EQ(Print(), standard);
}

TEST_F(Banner, ACustomPictureThatIsSwitchedOffIsNotUsed) {
    const std::string standard = Print();
    Option("txtBannerFile", MakePicture("banner.gif", 700, 120));
    Option("chkUseCustomBanner", "0");
    EXPECT_EQ(Print(), standard);
}

TEST_F(Banner, APictureThatDoesNotExistIsSkippedWithoutAMessage) {
    SetUpAll();
    for (const char* missing : {"gone.gif", "", "/", "."}) {
        BannerOption("LeftPicture", *missing ? (folder / missing).string() : "");
        Print();
        ExpectGoldenWithout("banner_default.txt", {"PrintLeftPicture"});
    }
    BannerOption("RightPicture", "");
    Print();
    ExpectGoldenWithout("banner_default.txt", {"PrintLeftPicture", "PrintRightPicture"});
}

TEST_F(Banner, WithoutAnythingSetUpItsLinesStandEmpty) {
    Owner() = {};
    Print();
    EXPECT_EQ(ValuesOf("Paragraph"),
              (std::vector<std::string>{"", "", "", " ", "", "Phone: ", "Fax: "}));
}

TEST_F(Banner, ACustomPictureTakesTheOwnersLinesAndPicturesAway) {
    SetUpAll();
    Option("txtBannerFile", " " + MakePicture("banner.gif", 700, 120) + " ");
    Print();
    ExpectGolden("banner_custom.txt");
}

TEST_F(Banner, NamesWithBarsAndBracesAreWrittenAsTheyStand) {
    Owner() = {"A|B;C", "{D}", "\\E", "F;", "G|"};
    BannerOption("Description", "x|y;z");
    Print();
    EXPECT_EQ(ValuesOf("Paragraph"), (std::vector<std::string>{"", "A|B;C", "x|y;z", "{D} \\E",
                                                               "F;", "Phone: G|", "Fax: "}));
    surface.Action(6);
    EXPECT_EQ(PageText(layout.Result().pages.at(0)).substr(0, 5), "A|B;C");
}

TEST_F(Banner, WithoutTheDateTheFooterIsEmpty) {
    Option("chkDate", "0");
    Print();
    EXPECT_EQ(ValuesOf("Footer"), std::vector<std::string>{"||"});
}

}  // namespace
}  // namespace tendo

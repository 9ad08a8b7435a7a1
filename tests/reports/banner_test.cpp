#include "reports/banner.h"

#include "report_fixture.h"

namespace tendo {
namespace {

class Banner : public ReportTest {
  protected:
    std::string Print() {
        surface.Action(3);
        PrintBanner(surface);
        return CallsText();
    }
};

TEST_F(Banner, TheDefaultOneHoldsTheCompanyBetweenTwoPictures) {
    BannerOption("Description", "Comfort, measured");
    BannerOption("CompanyFax", "(507) 555-0198");
    BannerOption("LeftPicture", MakePicture("left.gif", 10, 10));
    BannerOption("RightPicture", MakePicture("right.gif", 10, 10));
    Print();
    ExpectGolden("banner_default.txt");
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

TEST_F(Banner, EachLineHasItsOption) {
    for (const char* key : {"PrintCompanyName", "PrintDescription", "PrintCompanyAddress",
                            "PrintCityStateZip", "PrintCompanyPhone", "PrintCompanyFax"})
        BannerOption(key, "0");
    Print();
    EXPECT_EQ(CountOf("Paragraph"), 0);
    BannerOption("PrintCompanyPhone", "1");
    Print();
    EXPECT_EQ(ValuesOf("Paragraph"), std::vector<std::string>{"Phone: (507) 555-0199"});
}

TEST_F(Banner, APictureThatDoesNotExistOrIsSwitchedOffIsSkipped) {
    BannerOption("LeftPicture", (folder / "gone.gif").string());
    BannerOption("RightPicture", MakePicture("right.gif", 10, 10));
    BannerOption("PrintRightPicture", "0");
    Print();
    EXPECT_EQ(CountOf("Picture"), 0);
}

TEST_F(Banner, WithoutTheDateTheFooterIsEmpty) {
    Option("chkDate", "0");
    Print();
    EXPECT_EQ(ValuesOf("Footer"), std::vector<std::string>{"||"});
}

}  // namespace
}  // namespace tendo

#pragma once

namespace tendo {

/// Sibling programs, documents and pages outside of the program.
void mnuToolsKORVA_Click();
void mnuToolsPYROS_Click();
void mnuToolsMELDA_Click();
void mnuToolsVelmoToolbar_Click();
void mnuProjectModelDataBase_Click();
void mnuToolsConvert_Click();
void mnuToolsCalculator_Click();
void mnuHelpReadme_Click();
void mnuHelpSendMailToTechSupport_Click();
void mnuHelpAboutVelmoSoftware_Click();
void mnuVelmoFreeSoftwareDemos_Click();
void mnuVelmoNewsRoom_Click();
void mnuVelmoProgramUpdates_Click();
void mnuVelmoTrainingServices_Click();
void mnuVelmoHomePage_Click();

}  // namespace tendo

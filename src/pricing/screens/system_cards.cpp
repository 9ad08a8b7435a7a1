#include "pricing/screens/system_cards.h"

#include <QHBoxLayout>

#include "pricing/screens/system_card_button.h"
#include "project/program_state.h"

namespace tendo {

SystemCards::SystemCards(QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    for (int system = 0; system < SystemCount; ++system) {
        auto* card = new SystemCardButton(system, this);
        connect(card, &QAbstractButton::clicked, this, [this, system] { Q_EMIT Chosen(system); });
        row->addWidget(card, 1);
        cards_[static_cast<std::size_t>(system)] = card;
    }
}

void SystemCards::Show() {
    for (int system = 0; system < SystemCount; ++system) {
        SystemCardButton* card = cards_[static_cast<std::size_t>(system)];
        card->ShowCard(SystemCardOf(Project(), system));
        card->setChecked(system == State().SystemNumber);
    }
}

}  // namespace tendo

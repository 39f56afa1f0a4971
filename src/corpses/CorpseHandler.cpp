#include "corpses/CorpseHandler.h"

#include "core/Hub.h"

namespace ombrel {

CorpseHandler::CorpseHandler() { wtcw_debug("Corpse Handler Init"); }

CorpseHandler::~CorpseHandler() { wtcw_debug("Corpse Handler Terminate"); }

void CorpseHandler::UpdateCorpseList() {}
void CorpseHandler::CharDeath() {}
void CorpseHandler::NewCorpse(host::Id, double, double) {}
void CorpseHandler::CorpseCoords(const std::string&) {}
void CorpseHandler::CorpseData(const std::string&) {}
void CorpseHandler::AddCorpse() {}
void CorpseHandler::OpenCorpse(double, double, host::Id) {}
void CorpseHandler::CorpseDisappear(double, double, host::Id) {}
std::string CorpseHandler::GetCorpse() { return {}; }

}  // namespace ombrel

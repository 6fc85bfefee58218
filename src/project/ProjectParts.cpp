#include "project/ProjectParts.h"

#include "project/RuleSets.h"

namespace glossmill {

ProjectParts::ProjectParts(const Host& host, ApplicationServices& application, LogText logText,
                           LongJob::LoadSheet loadSheet)
    : m_host(host),
      m_application(application),
      m_statusTexts(host.bundle),
      m_scanMessages(host.bundle, host.systemLog, std::move(logText)),
      m_longJob(host.sheets, std::move(loadSheet)),
      m_unsaved(host.files, host.saves),
      m_rules(&projectRules(m_options.rules)) {}

ProjectParts::~ProjectParts() = default;

}  // namespace glossmill

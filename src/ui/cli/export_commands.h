#pragma once
// The commands that write the open data to a file: `export` ("Save / Export Data As...", in
// FASTA, MEGA, NBRF, NEXUS or PHYLIP) and `update-nexus` ("Update NEXUS Data File"), each with
// the options of "Nexus File Format. Options" as flags.

namespace ovelt {

class CliRegistry;

void AddExportCommands(CliRegistry& registry);

}  // namespace ovelt

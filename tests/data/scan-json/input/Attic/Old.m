NSLocalizedString(@"Gone", @"Not in the project file");

NSLocalizedString(@"Café", @"Latin 1 cannot be read");

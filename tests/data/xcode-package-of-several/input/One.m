NSLocalizedString(@"One", nil);

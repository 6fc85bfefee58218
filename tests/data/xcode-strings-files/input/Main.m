NSLocalizedString(@"Open", nil);

NSLocalizedString(@"Outer", nil);

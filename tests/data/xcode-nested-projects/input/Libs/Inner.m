NSLocalizedString(@"Inner", nil);

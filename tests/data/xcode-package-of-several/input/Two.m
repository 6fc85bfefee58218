NSLocalizedString(@"Two", nil);

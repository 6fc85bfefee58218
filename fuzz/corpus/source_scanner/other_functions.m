NSLocalizedStringFromTable(@"k", @"Table", @"c"); nslocalizedstring(@"k", @"c"); NSLocalizedStringWithDefaultValue(@"k", nil, b, @"D", @"c");

#import <Foundation/Foundation.h>

@interface FeeCalculator : NSObject

- (double)feeForMetres:(double)metres nights:(int)nights;
- (NSString *)explanation;

@end

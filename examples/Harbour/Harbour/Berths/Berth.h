#import <Foundation/Foundation.h>

typedef enum {
    BerthFree,
    BerthOccupied,
    BerthReserved,
    BerthClosed
} BerthState;

@interface Berth : NSObject

@property (copy, nonatomic) NSString *name;
@property (assign, nonatomic) BerthState state;
@property (assign, nonatomic) double depthInMetres;
@property (copy, nonatomic) NSString *vessel;

- (NSString *)stateText;
- (NSString *)depthText;

@end
